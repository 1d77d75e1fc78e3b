// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/send_flow.h"

#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "messaging/core/receipts.h"
#include "messaging/core/session_expiry.h"
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
  return announceSend(services_, schedule, kind_.senderIdUse);
}

SendOutcome SendFlow::deliver(const QString& numbers, const Operation& operation) const {
  const SendReply reply = callUnderProgress(operation);
  if (!accepted(reply)) return reply.outcomeUnknown ? SendOutcome::OutcomeUnknown : SendOutcome::NotSent;
  record(reply.receipts, numbers);
  if (hasFailures(reply.receipts)) {
    services_.notifier.information(failureWarning(text(kind_.someFailed), reply.receipts));
    return SendOutcome::PartlyFailed;
  }
  services_.notifier.information(text(kind_.delivered));
  return SendOutcome::Delivered;
}

SendReply SendFlow::callUnderProgress(const Operation& operation) const {
  const ProgressScope box(services_.progress);
  return operation(services_.state.session);
}

bool SendFlow::accepted(const SendReply& reply) const {
  if (!reply.answered)
    services_.notifier.error(text(kind_.unreachable));
  else if (reply.code == protocol::ResultCode::SessionExpired)
    renewSession(services_.notifier, services_.renewal);
  else if (reply.code != 0)
    services_.notifier.error(withNumber(kind_.refused, reply.code));
  else
    return true;
  return false;
}

void SendFlow::record(const QString& receipts, const QString& numbers) const {
  for (StatusEntry& entry : statusEntries(receipts, numbers, kind_.typeWord, QDateTime::currentDateTime()))
    services_.statusLog.add(std::move(entry));
  // A failed save is not reported: the log stays modified, and the next save tries again.
  if (services_.statusLog.isModified()) services_.statusFile.save(services_.statusLog);
}

}  // namespace parlexo
