// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

namespace parlexo {

/// The time at which a page's message is to be delivered. The default is immediate delivery.
struct Schedule {
  [[nodiscard]] static QString sendNow() { return tr("Send Message Now"); }

  QString text = sendNow();  ///< shown on the page: local time as "yyyy/MM/dd HH:mm:ss", or sendNow()
  QString value;             ///< sent to the gateway: the same instant in GMT, in the same format

  [[nodiscard]] bool isNow() const { return text == sendNow(); }

  Q_DECLARE_TR_FUNCTIONS(Schedule)
};

/// The schedule for `instant`, which may be in any time zone.
[[nodiscard]] Schedule scheduleAt(const QDateTime& instant);

/// Converts a valid local time to an instant. An ambiguous time, when the clocks go back, is the first of the
/// two instants. A time that does not exist, when the clocks go forward, is moved forward by the gap: 02:30
/// becomes 03:30 if an hour is missing.
[[nodiscard]] QDateTime fromLocalTime(QDate date, QTime time);

}  // namespace parlexo
