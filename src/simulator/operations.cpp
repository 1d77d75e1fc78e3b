// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/operations.h"

#include <utility>

#include "base/code_page.h"

namespace parlexo::simulator {

QString textOf(const std::string& wire) {
  return fromCodePage(QByteArrayView(wire.data(), static_cast<qsizetype>(wire.size())));
}

Session* Operations::session(const std::string& token) {
  return state_.sessions.use(textOf(token), state_.now());
}

Account* Operations::account(const std::string& token) {
  const Session* open = session(token);
  return open ? state_.accounts.find(open->user) : nullptr;
}

const Account* Operations::accountWithPassword(const std::string& user, const std::string& password) const {
  const Account* found = std::as_const(state_.accounts).find(textOf(user));
  const bool matches = found && !found->password.isEmpty() && found->password == textOf(password);
  return matches ? found : nullptr;
}

const char* Operations::keep(const QString& text) {
  QString wire;
  for (const char32_t each : text.toUcs4()) {
    const QString character = QString::fromUcs4(&each, 1);
    wire += fitsCodePage(character) ? QString::fromLatin1(toCodePage(character)) : character;
  }
  return kept_.emplace_back(wire.toUtf8()).constData();
}

protocol::ResultCode Operations::endSession(const std::string& token) {
  const bool closed = state_.sessions.close(textOf(token), state_.now());
  return closed ? protocol::ResultCode::Success : protocol::ResultCode::SessionExpired;
}

void Operations::handle(const protocol::sessionStart& request, protocol::sessionStartResponse& response) {
  if (const Account* owner = accountWithPassword(request.sUser, request.sPassword))
    response.sSession = keep(state_.sessions.open(owner->user, state_.now()));
  else
    response.nErrorCode = toNumber(protocol::ResultCode::WrongCredentials);
}

void Operations::handle(const protocol::sessionEnd& request, protocol::sessionEndResponse& response) {
  response.nErrorCode = toNumber(endSession(request.sSession));
}

void Operations::handle(const protocol::getVersion&, protocol::getVersionResponse& response) {
  response.nVersion = state_.options.protocolVersion;
}

void Operations::handle(const protocol::getNews&, protocol::getNewsResponse& response) {
  response.sNews = keep(state_.news);
}

}  // namespace parlexo::simulator
