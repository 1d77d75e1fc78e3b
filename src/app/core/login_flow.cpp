// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/login_flow.h"

#include "base/message_texts.h"
#include "base/secret.h"
#include "protocol/result_code.h"

namespace parlexo {

LoginOutcome LoginFlow::attempt(const QString& user, const QString& password) {
  const auto reply = gateway_.call<&GatewayClient::sessionStart>(user, Secret(password));
  if (!reply.answered()) {
    notifier_.error(text(TextId::GatewayUnreachable));
    return LoginOutcome::Refused;
  }
  if (reply->nErrorCode != 0) {
    showRefusal(reply->nErrorCode);
    return LoginOutcome::Refused;
  }
  storeSession(fromWire(reply->sSession), user);
  return LoginOutcome::Accepted;
}

void LoginFlow::showRefusal(int errorCode) {
  if (errorCode == protocol::ResultCode::WrongCredentials)
    notifier_.error(tr("Invalid Username or Password. Passwords are case sensitive"));
  else
    notifier_.error(withNumber(tr("An error occured while logging on. Error code: %d"), errorCode));
}

void LoginFlow::storeSession(const QString& session, const QString& user) {
  if (session.isEmpty()) return;
  state_.session = session;
  state_.userName = user;
  settings_.setRememberedUser(user);
}

}  // namespace parlexo
