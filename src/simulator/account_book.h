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
  QString password;  ///< empty: only the parent may open a session for this account
  QString parent;    ///< empty for an account of its own
  QString email;
  std::int64_t balanceCents = 0;
  bool maySetSenderId = true;
  EmailPreferences emailPreferences;
  std::vector<Transaction> history;
};

/// `amount` in hundredths, rounded; what is not a number or out of all bounds becomes 0.
[[nodiscard]] std::int64_t toCents(double amount);

/// Hundredths as an amount of the account's currency.
[[nodiscard]] constexpr double toAmount(std::int64_t cents) {
  constexpr double centsPerUnit = 100.0;
  return static_cast<double>(cents) / centsPerUnit;
}

/// The accounts of the gateway and the money on them.
class AccountBook {
 public:
  explicit AccountBook(const std::vector<AccountOptions>& accounts);

  /// The account of `user` (names are case-sensitive), or null.
  [[nodiscard]] Account* find(const QString& user);
  [[nodiscard]] const Account* find(const QString& user) const;
  /// Opens an account below `parent`. False when the name is taken.
  bool addBelow(const Account& parent, const QString& user, const QString& email);
  /// Adds `cents`, which may be negative, to the balance and writes it into the history.
  void post(Account& account, std::int64_t cents, const QDateTime& date, const QString& description);

 private:
  std::map<QString, Account> accounts_;
  int lastTransaction_ = 0;
};

/// The last 500 transactions as the wire carries them: ID, date, amount and description with a tab between
/// them, each record ended by "\r\n".
[[nodiscard]] QString historyText(const Account& account);

/// Whether `password` may be chosen: 6 to 10 characters, at least a letter and a digit.
[[nodiscard]] bool isAcceptablePassword(const QString& password);

/// Whether `preferences` are complete: an identity code when enabled, an address when filtered.
[[nodiscard]] bool areAcceptable(const EmailPreferences& preferences);

}  // namespace parlexo::simulator
