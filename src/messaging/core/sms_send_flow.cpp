// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/sms_send_flow.h"

#include "base/notifier.h"
#include "connection/client/gateway.h"
#include "messaging/core/messaging_texts.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

SendKind smsKind() {
  return {u"SMS"_s,         SenderIdUse::Set,   TextId::GatewayUnreachable,
          TextId::SmsError, TextId::SmsWarning, TextId::SmsSuccess};
}

SendReply sendSms(const Gateway& gateway, const QString& session, const QString& message,
                  const SmsDraft& draft) {
  const auto reply = gateway.call<&GatewayClient::sendSms>(session, message, draft.flash, draft.numbersList);
  return {reply.answered(), reply->nErrorCode, fromWire(reply->sListReciepts), reply.outcomeUnknown()};
}

}  // namespace

SmsSendFlow::SmsSendFlow(const MessagingServices& services)
    : services_(services), flow_(services, smsKind()) {}

SendOutcome SmsSendFlow::send(const SmsDraft& draft) const {
  const SmsComposition composition = composeSms(draft.text, draft.charset);
  if (!checkText(composition)) return SendOutcome::MessageAtFault;
  if (!flow_.checkRecipients(draft.displayList)) return SendOutcome::RecipientsAtFault;
  if (!flow_.checkBalance() || !flow_.announce(draft.schedule)) return SendOutcome::NotSent;
  return flow_.deliver(draft.numbersList, [&](const QString& session) {
    return sendSms(services_.gateway, session, composition.transmitText, draft);
  });
}

bool SmsSendFlow::checkText(const SmsComposition& composition) const {
  if (composition.tooLong)
    services_.notifier.error(messaging_texts::unicodeTooLong());
  else if (composition.transmitText.isEmpty())
    services_.notifier.error(messaging_texts::noSmsText());
  else
    return true;
  return false;
}

}  // namespace parlexo
