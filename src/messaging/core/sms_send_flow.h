// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "messaging/core/messaging_services.h"
#include "messaging/core/schedule.h"
#include "messaging/core/send_flow.h"
#include "messaging/core/sms_text.h"

namespace parlexo {

/// What the SMS page holds when the user presses Send.
struct SmsDraft {
  QString text;
  SmsCharset charset = SmsCharset::Standard;
  bool flash = false;
  QString displayList;  ///< the recipients as the page shows them; blank stops the send
  QString numbersList;  ///< the numbers that the message goes to, joined by commas
  Schedule schedule;
};

/// Sends one SMS to all its recipients and tells the user what became of it.
class SmsSendFlow {
 public:
  explicit SmsSendFlow(const MessagingServices& services);

  /// The gateway is asked to send at most once.
  [[nodiscard]] SendOutcome send(const SmsDraft& draft) const;

 private:
  [[nodiscard]] bool checkText(const SmsComposition& composition) const;

  MessagingServices services_;
  SendFlow flow_;
};

}  // namespace parlexo
