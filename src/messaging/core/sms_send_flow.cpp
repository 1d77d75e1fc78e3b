// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/sms_send_flow.h"

#include "base/notifier.h"
#include "base/progress.h"

namespace parlexo {

QString SmsSendFlow::noText() {
  return tr("No SMS message has been provided. Enter a SMS message.");
}

QString SmsSendFlow::unicodeTooLong() {
  return tr("Unicode text is too long for message, we can not send this!");
}

SendOutcome SmsSendFlow::send(const SmsDraft& draft) const {
  const SmsComposition composition = composeSms(draft.text, draft.charset);
  if (!checkText(composition)) return SendOutcome::MessageAtFault;
  if (!checkRecipients(draft.displayList)) return SendOutcome::RecipientsAtFault;
  if (!checkBalance() || !announce(draft.schedule)) return SendOutcome::NotSent;
  return finish(transmit(draft, composition.transmitText), draft.numbersList);
}

bool SmsSendFlow::checkText(const SmsComposition& composition) const {
  if (composition.tooLong)
    services().notifier.error(unicodeTooLong());
  else if (composition.transmitText.isEmpty())
    services().notifier.error(noText());
  else
    return true;
  return false;
}

SendReply SmsSendFlow::transmit(const SmsDraft& draft, const QString& message) const {
  const ProgressScope box(services().progress);
  return toSendReply(services().gateway.call<&GatewayClient::sendSms>(services().state.session, message,
                                                                      draft.flash, draft.numbersList));
}

}  // namespace parlexo
