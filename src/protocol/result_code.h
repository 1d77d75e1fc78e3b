// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace parlexo::protocol {

/// The values of `nErrorCode`. The client handles Success, BadEmailSettings, WrongCredentials and
/// SessionExpired; it shows any other code to the user as a number.
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

/// Compares a number from the wire, which need not be one of the codes above.
[[nodiscard]] constexpr bool operator==(std::int32_t number, ResultCode code) {
  return number == toNumber(code);
}

/// A one-line description for the simulator's help and log, without a full stop. "unknown" for a value
/// outside the enumeration.
[[nodiscard]] const char* describe(ResultCode code);

}  // namespace parlexo::protocol
