// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/schedule.h"

#include "tests/messaging/time_zone_scope.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

// The local time has a Z only to be parsed without zone rules.
const Cases<const char*, const char*, const char*, const char*, const char*> localTimes = {
    {"GMT itself", "UTC", "2026-11-21T09:05:07Z", "2026/11/21 09:05:07", "2026/11/21 09:05:07"},
    {"east, across midnight and the year", "Asia/Kolkata", "2027-01-01T02:00:00Z", "2027/01/01 02:00:00",
     "2026/12/31 20:30:00"},
    {"in the gap", "Europe/Berlin", "2026-03-29T02:30:00Z", "2026/03/29 03:30:00", "2026/03/29 01:30:00"},
    {"in a gap at midnight", "America/Sao_Paulo", "2018-11-04T00:00:00Z", "2018/11/04 01:00:00",
     "2018/11/04 03:00:00"},
    {"in the gap where winter is the exception", "Europe/Dublin", "2026-03-29T01:30:00Z",
     "2026/03/29 02:30:00", "2026/03/29 01:30:00"},
    {"on a day that was left out", "Pacific/Apia", "2011-12-30T12:00:00Z", "2011/12/31 12:00:00",
     "2011/12/30 22:00:00"},
    {"in the hour that comes twice", "America/New_York", "2026-11-01T01:30:00Z", "2026/11/01 01:30:00",
     "2026/11/01 05:30:00"},
    {"behind the 32-bit seconds", "Europe/Berlin", "2040-07-01T12:00:00Z", "2040/07/01 12:00:00",
     "2040/07/01 10:00:00"},
    {"before the zones", "UTC", "1801-02-03T04:05:06Z", "1801/02/03 04:05:06", "1801/02/03 04:05:06"},
};

TEST(Schedule, hasTheSameInstantInBothTexts) {
  for (const auto& [what, zoneName, clocks, local, gmt] : localTimes) {
    SCOPED_TRACE(what);
    const TimeZoneScope zone(zoneName);
    const QDateTime time = QDateTime::fromString(QString::fromLatin1(clocks), Qt::ISODate);
    // Earlier calls of the C library must not matter.
    for (const QDate before : {QDate(2026, 1, 15), QDate(2026, 7, 15)}) {
      (void)QDateTime(before, QTime(12, 0)).toSecsSinceEpoch();
      const Schedule schedule = scheduleAt(fromLocalTime(time.date(), time.time()));
      EXPECT_EQ(schedule.text.toStdString(), local);
      EXPECT_EQ(schedule.value.toStdString(), gmt);
      EXPECT_FALSE(schedule.isNow());
    }
  }
}

}  // namespace
}  // namespace parlexo::test
