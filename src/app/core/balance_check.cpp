// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/balance_check.h"

#include <array>
#include <charconv>
#include <limits>

namespace parlexo {

namespace {

constexpr double lowBalance = 2.0;

// Independent of the locale. The largest double has max_exponent10 digits before the decimal point.
QString formatAmount(double value) {
  std::array<char, std::numeric_limits<double>::max_exponent10 + 8> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 2);
  return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

}  // namespace

QString BalanceCheck::run() {
  const auto balance = query();
  return balance ? report(*balance) : QString();
}

std::optional<QString> BalanceCheck::refresh() {
  const auto balance = query();
  if (!balance) return std::nullopt;
  if (*balance <= 0.0) state_.balanceIsZero = true;
  return formatAmount(*balance);
}

QString BalanceCheck::report(double balance) {
  if (balance <= 0.0) {
    state_.balanceIsZero = true;
    warn(TextId::BalanceZero);
  } else if (balance < lowBalance) {
    warn(TextId::BalanceLow);
  }
  return formatAmount(balance);
}

std::optional<double> BalanceCheck::query() {
  const auto reply = gateway_.call<&GatewayClient::getAccountBalance>(state_.session);
  if (!reply.answered()) {
    progress_.hide();
    notifier_.error(text(TextId::GatewayUnreachable));
    return std::nullopt;
  }
  if (reply->nErrorCode != 0) return std::nullopt;
  return reply->dValue;
}

void BalanceCheck::warn(TextId warning) {
  progress_.hide();
  notifier_.show(text(warning), message_style::information, static_cast<int>(warning));
}

}  // namespace parlexo
