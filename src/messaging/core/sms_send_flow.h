// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

#include "messaging/core/schedule.h"
#include "messaging/core/send_flow.h"
#include "messaging/core/sms_text.h"

namespace parlexo {

/// The contents of the SMS page when the user presses Send.
struct SmsDraft {
  QString text;
  SmsCharset charset = SmsCharset::Standard;
  bool flash = false;
  QString displayList;  ///< the recipients that the page shows; an empty list is refused
  QString numbersList;  ///< the numbers to send to, separated by commas
  Schedule schedule;
};

/// Sends one SMS to all its recipients and reports the result.
class SmsSendFlow : private SendFlow {
  Q_DECLARE_TR_FUNCTIONS(SmsSendFlow)

 public:
  /// `services` must refer to objects that outlive the flow.
  explicit SmsSendFlow(const MessagingServices& services) : SendFlow(services, MessageType::Sms) {}

  /// Checks `draft` and sends it. Calls the send operation at most once.
  [[nodiscard]] SendOutcome send(const SmsDraft& draft) const;

  /// The error messages for an empty text and for a Unicode text over the limit.
  [[nodiscard]] static QString noText();
  [[nodiscard]] static QString unicodeTooLong();

 private:
  [[nodiscard]] bool checkText(const SmsComposition& composition) const;
  [[nodiscard]] SendReply transmit(const SmsDraft& draft, const QString& message) const;
};

}  // namespace parlexo
