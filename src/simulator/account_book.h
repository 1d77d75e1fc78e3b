// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include <QDateTime>
#include <QString>

#include "simulator/simulator_options.h"

namespace parlexo::simulator {

struct Transaction {
  int id = 0;
  QDateTime date;
  std::int64_t cents = 0;
  QString description;
};

struct Account {
  QString user;
  QString password;  ///< empty if only the parent may open sessions
  QString parent;    ///< user name of the parent account; empty for a top-level account
  QString email;
  std::int64_t balanceCents = 0;
  bool maySetSenderId = true;
  EmailPreferences emailPreferences;
  std::vector<Transaction> history;
};

/// Converts `amount` to hundredths, rounded. Returns 0 for NaN and amounts beyond a billion.
[[nodiscard]] std::int64_t toCents(double amount);

/// Converts hundredths to an amount in the account's currency.
[[nodiscard]] constexpr double toAmount(std::int64_t cents) {
  constexpr double centsPerUnit = 100.0;
  return static_cast<double>(cents) / centsPerUnit;
}

/// The accounts of the gateway with their balances.
class AccountBook {
 public:
  explicit AccountBook(const std::vector<AccountOptions>& accounts);

  /// Returns the account of `user` (case-sensitive), or null.
  [[nodiscard]] Account* find(const QString& user);
  [[nodiscard]] const Account* find(const QString& user) const;
  /// Adds an account below `parent`. Returns false if the name is taken.
  bool addBelow(const Account& parent, const QString& user, const QString& email);
  /// Adds `cents`, which may be negative, to the balance and records the transaction in the history.
  void post(Account& account, std::int64_t cents, const QDateTime& date, const QString& description);

 private:
  std::map<QString, Account> accounts_;
  int lastTransaction_ = 0;
};

/// Returns the last 500 transactions in wire format: ID, date, amount and description separated by tabs, each
/// record terminated by "\r\n".
[[nodiscard]] QString historyText(const Account& account);

/// Returns whether `password` is valid: 6 to 10 characters with at least one letter and one digit.
[[nodiscard]] bool isAcceptablePassword(const QString& password);

/// Returns whether `preferences` have an identity code if enabled, and an address if filtered.
[[nodiscard]] bool areComplete(const EmailPreferences& preferences);

}  // namespace parlexo::simulator
