// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

namespace parlexo {

/// When a page's message is to be delivered. The default means at once.
struct Schedule {
  [[nodiscard]] static QString sendNow() { return QStringLiteral("Send Message Now"); }

  QString text = sendNow();  ///< what the page shows: local time, "yyyy/MM/dd HH:mm:ss", or sendNow()
  QString value;             ///< what the gateway is told: the same instant in GMT, in the same form

  [[nodiscard]] bool isNow() const { return text == sendNow(); }
};

/// The schedule that delivers at `instant`, whatever zone it is given in.
[[nodiscard]] Schedule scheduleAt(const QDateTime& instant);

/// The instant at which the clocks of the system's time zone show `date` and `time`, both valid. A time that
/// they show twice, because they are put back, means the first of the two. A time that they skip, because
/// they are put forward, is reckoned as if they were not: 02:30 becomes 03:30 where an hour is missing.
[[nodiscard]] QDateTime instantOfLocalTime(QDate date, QTime time);

}  // namespace parlexo
