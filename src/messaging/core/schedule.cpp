// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/schedule.h"

#include <algorithm>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 secondsPerDay = 24 * 60 * 60;

QDateTime localInstant(qint64 seconds) {
  return QDateTime::fromSecsSinceEpoch(seconds, Qt::LocalTime);
}

QString timeText(const QDateTime& time) {
  return time.toString(u"yyyy/MM/dd HH:mm:ss"_s);
}

}  // namespace

Schedule scheduleAt(const QDateTime& instant) {
  return {timeText(instant.toLocalTime()), timeText(instant.toUTC())};
}

// Only the way from an instant to the clocks' time is asked of the system. Asked the other way round, the C
// library answers for a time that comes twice now the one instant, now the other, depending on what it was
// asked before.
QDateTime instantOfLocalTime(QDate date, QTime time) {
  const qint64 clocks = QDateTime(date, time, Qt::UTC).toSecsSinceEpoch();
  // No zone is further than a day from GMT, so these two lie on either side of the wanted instant.
  const qint64 byOldOffset = clocks - localInstant(clocks - secondsPerDay).offsetFromUtc();
  const qint64 byNewOffset = clocks - localInstant(clocks + secondsPerDay).offsetFromUtc();
  const auto isShown = [clocks](qint64 instant) {
    return instant + localInstant(instant).offsetFromUtc() == clocks;
  };
  const qint64 first = std::min(byOldOffset, byNewOffset);
  const qint64 second = std::max(byOldOffset, byNewOffset);
  if (isShown(first)) return localInstant(first);
  return localInstant(isShown(second) ? second : byOldOffset);
}

}  // namespace parlexo
