// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QDateTime>
#include <QString>
#include <QStringList>

#include "base/message_type.h"
#include "messaging/core/status_log.h"

namespace parlexo {

/// The gateway replies to a send with a list of receipts: one element "number:receipt" per recipient,
/// separated by commas. The receipt of a failed number contains "FAIL".

/// The status of an entry before the first query. Part of the status file's format, so not translated.
[[nodiscard]] inline QString deliveredToGateway() {
  return QStringLiteral("Delivered to Gateway");
}

/// The log entries for a message sent at local time `now`, in the order of the receipts and including failed
/// numbers. Empty if the counts of receipts and numbers differ, because they can't be matched then.
[[nodiscard]] std::vector<StatusEntry> statusEntries(const QString& receipts, const QString& numbersSent,
                                                     MessageType type, const QDateTime& now);

/// Returns true if any number failed. Also accepts a single receipt.
[[nodiscard]] bool hasFailures(const QString& receipts);

/// `warning` followed by the failed numbers, each line ending with a line feed.
[[nodiscard]] QString failureWarning(const QString& warning, const QString& receipts);

}  // namespace parlexo
