// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/result_code.h"

namespace parlexo::protocol {

const char* describe(ResultCode code) {
  switch (code) {
    case ResultCode::Success:
      return "success";
    case ResultCode::InternalError:
      return "internal error (never by itself, only as a fault)";
    case ResultCode::BadEmailSettings:
      return "e-mail messaging without identity code, or filter without addresses";
    case ResultCode::EmptyMessage:
      return "the message has no text";
    case ResultCode::WrongCredentials:
      return "wrong user name or password";
    case ResultCode::BalanceTooLow:
      return "the balance does not cover the message; nothing was sent";
    case ResultCode::NoRecipients:
      return "the list of numbers is empty";
    case ResultCode::SessionExpired:
      return "the session is unknown, ended or expired";
    case ResultCode::BadFile:
      return "the file is empty, has no name or is larger than its limit";
    case ResultCode::BadSchedule:
      return "the schedule is not YYYY/MM/DD hh:mm:ss or too far ahead";
    case ResultCode::UnknownReceipt:
      return "this account has no message with that receipt";
    case ResultCode::WeakPassword:
      return "a password has 6 to 10 characters, letters and digits among them";
    case ResultCode::SenderIdRefused:
      return "the sender ID is malformed, or the account may not set one";
    case ResultCode::BadUser:
      return "the user is unknown, not yours, taken or malformed";
    case ResultCode::UnknownTariff:
      return "no tariff for that country, number or service";
    case ResultCode::MessageTooLong:
      return "the text is longer than five SMS, or the note longer than its limit";
  }
  return "unknown";
}

}  // namespace parlexo::protocol
