// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include <QString>

#include "account/core/account_services.h"

namespace parlexo {

/// One movement on the account, its fields as the gateway sent them.
struct HistoryRecord {
  QString id;
  QString date;
  QString amount;
  QString description;

  bool operator==(const HistoryRecord&) const = default;
};

/// The records of a history text, in its order: each ends with "\r\n", its four fields are separated by tabs.
/// Empty records are passed over, missing fields are empty, what follows a fourth tab belongs to the
/// description, and text after the last "\r\n" is not a record.
[[nodiscard]] std::vector<HistoryRecord> parseHistory(const QString& text);

/// A number that orders dates of the form "dd/MM/yyyy HH:mm:ss" by time; none for a text of another form.
[[nodiscard]] std::optional<double> historyDateOrder(QStringView date);

/// Fetches the account's last movements from the gateway.
class AccountHistoryFlow {
 public:
  /// `services` must refer to objects that outlive the flow.
  explicit AccountHistoryFlow(const AccountServices& services) : services_(services) {}

  /// Asks the gateway under the progress box. Nothing when it refused or could not be reached, which the user
  /// has then been told with one and the same message; a session that is over is no exception.
  [[nodiscard]] std::optional<std::vector<HistoryRecord>> load() const;

 private:
  AccountServices services_;
};

}  // namespace parlexo
