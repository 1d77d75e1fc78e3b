// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/notification_results.h"

namespace parlexo {

MessageResult suppressedResult(unsigned style) {
  const unsigned buttons = style & message_style::buttonBits;
  const bool offersWayOut = buttons == message_style::okCancel ||
                            buttons == message_style::abortRetryIgnore ||
                            buttons == message_style::yesNoCancel;
  return offersWayOut ? MessageResult::No : MessageResult::Ok;
}

MessageResult closeResult(unsigned style) {
  const unsigned buttons = style & message_style::buttonBits;
  if (buttons == message_style::yesNoCancel) return MessageResult::Cancel;
  return buttons == message_style::yesNo ? MessageResult::No : MessageResult::Ok;
}

}  // namespace parlexo
