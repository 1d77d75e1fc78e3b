// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/account_book.h"

#include <algorithm>
#include <cmath>

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t maxShownTransactions = 500;

// Replaces control characters, as tabs and line breaks separate fields and records.
QString toHistoryField(QString text) {
  for (QChar& character : text)
    if (character.category() == QChar::Other_Control) character = u' ';
  return text;
}

QString toHistoryRecord(const Transaction& transaction) {
  const QStringList fields = {
      QString::number(transaction.id),
      transaction.date.toUTC().toString(u"dd/MM/yyyy HH:mm:ss"_s),
      QString::number(toAmount(transaction.cents), 'f', 2),
      toHistoryField(transaction.description),
  };
  return fields.join(u'\t') + u"\r\n"_s;
}

}  // namespace

std::int64_t toCents(double amount) {
  constexpr double bound = 1e9;
  if (!(std::abs(amount) <= bound)) return 0;
  constexpr double centsPerUnit = 100.0;
  return std::llround(amount * centsPerUnit);
}

AccountBook::AccountBook(const std::vector<AccountOptions>& accounts) {
  for (const AccountOptions& options : accounts) {
    Account account;
    account.user = options.user;
    account.password = options.password;
    account.balanceCents = toCents(options.balance);
    account.maySetSenderId = options.maySetSenderId;
    account.emailPreferences = options.email;
    accounts_.insert_or_assign(options.user, account);
  }
}

Account* AccountBook::find(const QString& user) {
  const auto it = accounts_.find(user);
  return it == accounts_.end() ? nullptr : &it->second;
}

const Account* AccountBook::find(const QString& user) const {
  const auto it = accounts_.find(user);
  return it == accounts_.end() ? nullptr : &it->second;
}

bool AccountBook::addBelow(const Account& parent, const QString& user, const QString& email) {
  Account account;
  account.user = user;
  account.parent = parent.user;
  account.email = email;
  account.maySetSenderId = parent.maySetSenderId;
  return accounts_.try_emplace(user, account).second;
}

void AccountBook::post(Account& account, std::int64_t cents, const QDateTime& date,
                       const QString& description) {
  account.balanceCents += cents;
  account.history.push_back({++lastTransaction_, date, cents, description});
}

QString historyText(const Account& account) {
  const std::size_t skipped = account.history.size() - std::min(account.history.size(), maxShownTransactions);
  QString text;
  for (std::size_t i = skipped; i < account.history.size(); ++i) text += toHistoryRecord(account.history[i]);
  return text;
}

bool isAcceptablePassword(const QString& password) {
  constexpr int minLength = 6;
  constexpr int maxLength = 10;
  const auto has = [&password](auto test) { return std::any_of(password.begin(), password.end(), test); };
  return password.size() >= minLength && password.size() <= maxLength &&
         has([](QChar character) { return character.isLetter(); }) &&
         has([](QChar character) { return character.isDigit(); });
}

bool areComplete(const EmailPreferences& preferences) {
  if (!preferences.enabled) return true;
  if (preferences.code.isEmpty()) return false;
  return !preferences.filter || !preferences.address1.isEmpty() || !preferences.address2.isEmpty() ||
         !preferences.address3.isEmpty();
}

}  // namespace parlexo::simulator
