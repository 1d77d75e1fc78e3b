// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include <QString>

#include "account/core/account_services.h"

namespace parlexo {

/// One transaction of the account, with its fields as sent by the gateway.
struct HistoryRecord {
  QString id;
  QString date;
  QString amount;
  QString description;

  bool operator==(const HistoryRecord&) const = default;
};

/// Parses a history text, in which each record ends with "\r\n" and its four fields are separated by tabs.
/// Empty records are skipped, missing fields are empty and further tabs belong to the description. Text after
/// the last "\r\n" is ignored.
[[nodiscard]] std::vector<HistoryRecord> parseHistory(const QString& text);

/// Converts a date "dd/MM/yyyy HH:mm:ss" to a number by which dates sort in chronological order. Returns
/// nullopt if `date` has another format.
[[nodiscard]] std::optional<double> toSortKey(QStringView date);

/// Fetches the account's last transactions from the gateway and shows the progress box meanwhile. If that
/// fails for any reason, including an expired session, reports the error to the user and returns nullopt.
[[nodiscard]] std::optional<std::vector<HistoryRecord>> fetchAccountHistory(const AccountServices& services);

}  // namespace parlexo
