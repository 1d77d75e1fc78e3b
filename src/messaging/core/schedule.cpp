// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/schedule.h"

#include <algorithm>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 secondsPerDay = 24 * 60 * 60;

QDateTime toLocalTime(qint64 seconds) {
  return QDateTime::fromSecsSinceEpoch(seconds, Qt::LocalTime);
}

QString timeText(const QDateTime& time) {
  return time.toString(u"yyyy/MM/dd HH:mm:ss"_s);
}

}  // namespace

Schedule scheduleAt(const QDateTime& instant) {
  return {timeText(instant.toLocalTime()), timeText(instant.toUTC())};
}

// Converts only from instants to local time. In the other direction the C library resolves an ambiguous local
// time differently from call to call, depending on the conversions before.
QDateTime fromLocalTime(QDate date, QTime time) {
  const qint64 wallClock = QDateTime(date, time, Qt::UTC).toSecsSinceEpoch();
  // Offsets are shorter than a day, so these two instants are before and after the wanted one.
  const qint64 byOldOffset = wallClock - toLocalTime(wallClock - secondsPerDay).offsetFromUtc();
  const qint64 byNewOffset = wallClock - toLocalTime(wallClock + secondsPerDay).offsetFromUtc();
  const auto matches = [wallClock](qint64 instant) {
    return instant + toLocalTime(instant).offsetFromUtc() == wallClock;
  };
  const qint64 first = std::min(byOldOffset, byNewOffset);
  const qint64 second = std::max(byOldOffset, byNewOffset);
  if (matches(first)) return toLocalTime(first);
  return toLocalTime(matches(second) ? second : byOldOffset);
}

}  // namespace parlexo
