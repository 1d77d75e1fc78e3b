#pragma once

namespace parlexo::simulator {

/// What the gateway answers in `nErrorCode`. The client knows the numbers 0, 2, 4 and 7; the others are this
/// gateway's own and reach the user as a bare number.
enum class ResultCode : int {
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

/// One line of help for a code, without a full stop.
[[nodiscard]] const char* meaningOf(ResultCode code);

}  // namespace parlexo::simulator
