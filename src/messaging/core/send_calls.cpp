// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/send_calls.h"

#include "base/message_texts.h"
#include "base/notifier.h"
#include "base/run_state.h"
#include "connection/client/gateway.h"
#include "messaging/core/messaging_texts.h"

namespace parlexo {
namespace {

bool cancelSchedule(const MessagingServices& services) {
  const auto reply = services.gateway.call<&GatewayClient::scheduleMessageDisable>(services.state.session);
  // Whatever comes back: if the gateway is out of reach or the session over, the send itself will say so.
  // Only the user's own wish to stop is not for the send to find out.
  if (!reply.cancelled()) return true;
  services.notifier.error(text(TextId::GatewayUnreachable));
  return false;
}

bool setSchedule(const MessagingServices& services, const QString& value) {
  const auto reply =
      services.gateway.call<&GatewayClient::scheduleMessageEnable>(value, services.state.session);
  if (reply.answered() && reply->nErrorCode == 0 && !reply.cancelled()) return true;
  services.notifier.error(withNumber(messaging_texts::scheduleRefused(), reply->nErrorCode));
  return false;
}

bool setSenderId(const MessagingServices& services) {
  const auto reply =
      services.gateway.call<&GatewayClient::setSmsSenderId>(services.state.session, services.state.senderId);
  if (!reply.answered() || reply.cancelled())
    services.notifier.error(text(TextId::GatewayUnreachable));
  else if (reply->nErrorCode != 0)
    services.notifier.error(withNumber(messaging_texts::senderIdRefused(), reply->nErrorCode));
  else
    return true;
  return false;
}

}  // namespace

bool announceSend(const MessagingServices& services, const Schedule& schedule, SenderIdUse use) {
  if (!cancelSchedule(services)) return false;
  if (!schedule.isNow() && !setSchedule(services, schedule.value)) return false;
  const bool hasSenderId = use == SenderIdUse::Set && !services.state.senderId.isEmpty();
  return !hasSenderId || setSenderId(services);
}

}  // namespace parlexo
