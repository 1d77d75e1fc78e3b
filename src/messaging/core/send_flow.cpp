// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/send_flow.h"

#include "base/notifier.h"
#include "base/session_renewal.h"
#include "messaging/core/receipts.h"
#include "messaging/core/status_file.h"
#include "protocol/result_code.h"

namespace parlexo {

bool SendFlow::checkRecipients(const QString& displayList) const {
  if (!displayList.isEmpty()) return true;
  services_.notifier.error(text(TextId::RecipientsBlank));
  return false;
}

bool SendFlow::checkBalance() const {
  if (!services_.state.balanceIsZero) return true;
  services_.notifier.information(text(TextId::BalanceZero));
  return false;
}

bool SendFlow::announce(const Schedule& schedule) const {
  if (!cancelSchedule()) return false;
  if (!schedule.isNow() && !setSchedule(schedule.value)) return false;
  const bool hasSenderId = traits_.senderIdUse == SenderIdUse::Set && !services_.state.senderId.isEmpty();
  return !hasSenderId || setSenderId();
}

// A failure is ignored unless the user cancelled: the send that follows reports an unreachable gateway or an
// expired session itself.
bool SendFlow::cancelSchedule() const {
  const auto reply = services_.gateway.call<&GatewayClient::scheduleMessageDisable>(services_.state.session);
  if (!reply.cancelled()) return true;
  services_.notifier.error(text(TextId::GatewayUnreachable));
  return false;
}

bool SendFlow::setSchedule(const QString& value) const {
  const auto reply =
      services_.gateway.call<&GatewayClient::scheduleMessageEnable>(value, services_.state.session);
  if (reply.answered() && reply->nErrorCode == 0 && !reply.cancelled()) return true;
  services_.notifier.error(
      withNumber(tr("Error setting schedule date. Perhaps you have scheduled the message too far into the "
                    "future? Error: %i"),
                 reply->nErrorCode));
  return false;
}

bool SendFlow::setSenderId() const {
  const auto reply = services_.gateway.call<&GatewayClient::setSmsSenderId>(services_.state.session,
                                                                            services_.state.senderId);
  if (!reply.answered() || reply.cancelled())
    services_.notifier.error(text(TextId::GatewayUnreachable));
  else if (reply->nErrorCode != 0)
    services_.notifier.error(
        withNumber(tr("Error setting your Sender Id. Are you sure you have set a valid Sender Id and your "
                      "account is enabled to set Any Sender ID? Error: %i"),
                   reply->nErrorCode));
  else
    return true;
  return false;
}

SendOutcome SendFlow::finish(const SendReply& reply, const QString& numbers) const {
  if (!isAccepted(reply)) return reply.outcomeUnknown ? SendOutcome::OutcomeUnknown : SendOutcome::NotSent;
  record(reply.receipts, numbers);
  if (hasFailures(reply.receipts)) {
    services_.notifier.information(failureWarning(text(traits_.someFailed), reply.receipts));
    return SendOutcome::PartlyFailed;
  }
  services_.notifier.information(text(traits_.delivered));
  return SendOutcome::Delivered;
}

bool SendFlow::isAccepted(const SendReply& reply) const {
  if (!reply.answered)
    services_.notifier.error(text(traits_.unreachable));
  else if (reply.code == protocol::ResultCode::SessionExpired)
    renewSession(services_.notifier, services_.renewal);
  else if (reply.code != 0)
    services_.notifier.error(withNumber(traits_.refused, reply.code));
  else
    return true;
  return false;
}

void SendFlow::record(const QString& receipts, const QString& numbers) const {
  for (StatusEntry& entry : statusEntries(receipts, numbers, traits_.type, QDateTime::currentDateTime()))
    services_.statusLog.add(std::move(entry));
  // A failed save is not reported: the log stays modified and the next save retries.
  if (services_.statusLog.isModified()) services_.statusFile.save(services_.statusLog);
}

}  // namespace parlexo
