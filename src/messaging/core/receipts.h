// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QDateTime>
#include <QString>
#include <QStringList>

#include "messaging/core/status_log.h"

namespace parlexo {

/// What the gateway answers to a send: one element "number:receipt" per recipient, joined by commas, where
/// the receipt of a number that it could not serve holds "FAIL".

/// The status of an entry until the first query.
[[nodiscard]] inline QString deliveredToGateway() {
  return QStringLiteral("Delivered to Gateway");
}

/// The entries to log for a send of type `typeWord` at local time `now`, in the order of the receipts,
/// failed numbers included. Empty when there are not exactly as many receipts as numbers were sent, since
/// nobody could then say which belongs to which.
[[nodiscard]] std::vector<StatusEntry> statusEntries(const QString& receipts, const QString& numbersSent,
                                                     const QString& typeWord, const QDateTime& now);

/// True when the gateway could not serve some of the numbers.
[[nodiscard]] bool hasFailures(const QString& receipts);

/// `warning` and the numbers that failed, each line ended by a line feed.
[[nodiscard]] QString failureWarning(const QString& warning, const QString& receipts);

}  // namespace parlexo
