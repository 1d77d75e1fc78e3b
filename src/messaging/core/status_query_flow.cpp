#include "messaging/core/status_query_flow.h"

#include "base/message_texts.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "gateway/core/gateway.h"
#include "messaging/core/session_expiry.h"
#include "messaging/core/status_file.h"
#include "messaging/core/status_log.h"

namespace parlexo {

void StatusQueryFlow::query(const QStringList& receipts, const Updated& updated) const {
  if (receipts.isEmpty()) return;
  const Answer last = askAll(receipts, updated);
  if (services_.statusLog.isModified()) services_.statusFile.save(services_.statusLog);
  if (!last.isGood()) report(last);
}

StatusQueryFlow::Answer StatusQueryFlow::askAll(const QStringList& receipts, const Updated& updated) const {
  // The box goes before any message is shown.
  const ProgressScope box(services_.progress);
  for (const QString& receipt : receipts) {
    Answer answer = ask(receipt);
    if (!answer.isGood()) return answer;
    services_.statusLog.setStatus(receipt, answer.status);
    updated(receipt, answer.status);
  }
  return {};
}

StatusQueryFlow::Answer StatusQueryFlow::ask(const QString& receipt) const {
  const auto reply = services_.gateway.call<protocol::getStatusResponse>(
      [session = toWire(services_.state.session), receipt = toWire(receipt)](
          GatewayClient& client, protocol::getStatusResponse& response) {
        return client.getStatus(session, receipt, response);
      });
  return {reply.answered(), reply->nErrorCode, fromWire(reply->sStatus)};
}

void StatusQueryFlow::report(const Answer& failure) const {
  if (!failure.answered)
    services_.notifier.error(text(TextId::GatewayUnreachable));
  else if (failure.code == sessionExpiredCode)
    renewSession(services_.notifier, services_.renewal);
  else
    services_.notifier.error(withNumber(TextId::StatusQueryError, failure.code));
}

}  // namespace parlexo
