// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace parlexo::protocol {

/// What the gateway returns in `nErrorCode`. The client gives Success, BadEmailSettings, WrongCredentials and
/// SessionExpired a meaning of their own; it shows any other code to the user as a number.
enum class ResultCode : std::int32_t {
  Success = 0,
  InternalError = 1,
  BadEmailSettings = 2,
  EmptyMessage = 3,
  WrongCredentials = 4,
  BalanceTooLow = 5,
  NoRecipients = 6,
  SessionExpired = 7,
  BadFile = 8,
  BadSchedule = 9,
  UnknownReceipt = 10,
  WeakPassword = 11,
  SenderIdRefused = 12,
  BadUser = 13,
  UnknownTariff = 14,
  MessageTooLong = 15,
};

[[nodiscard]] constexpr std::int32_t toNumber(ResultCode code) {
  return static_cast<std::int32_t>(code);
}

/// Compares a number from the wire, which may be none of the codes above.
[[nodiscard]] constexpr bool operator==(std::int32_t number, ResultCode code) {
  return number == toNumber(code);
}

/// One line of help for a code, without a full stop.
[[nodiscard]] const char* meaningOf(ResultCode code);

}  // namespace parlexo::protocol
