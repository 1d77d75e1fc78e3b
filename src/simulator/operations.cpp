// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/operations.h"

#include <utility>

#include "base/code_page.h"

namespace parlexo::simulator {

QString toText(const std::string& wire) {
  return fromCodePage(QByteArrayView(wire.data(), static_cast<qsizetype>(wire.size())));
}

Session* Operations::session(const std::string& token) {
  return state_.sessions.use(toText(token), state_.now());
}

Account* Operations::account(const std::string& token) {
  const Session* open = session(token);
  return open ? state_.accounts.find(open->user) : nullptr;
}

const Account* Operations::accountWithPassword(const std::string& user, const std::string& password) const {
  const Account* account = std::as_const(state_.accounts).find(toText(user));
  const bool matches = account && !account->password.isEmpty() && account->password == toText(password);
  return matches ? account : nullptr;
}

const char* Operations::toWire(const QString& text) {
  QString wire;
  for (const char32_t each : text.toUcs4()) {
    const QString character = QString::fromUcs4(&each, 1);
    wire += fitsCodePage(character) ? QString::fromLatin1(toCodePage(character)) : character;
  }
  return wireTexts_.emplace_back(wire.toUtf8()).constData();
}

ResultCode Operations::endSession(const std::string& token) {
  const bool closed = state_.sessions.close(toText(token), state_.now());
  return closed ? ResultCode::Success : ResultCode::SessionExpired;
}

ResultCode Operations::handle(const protocol::sessionStart& request,
                              protocol::sessionStartResponse& response) {
  const Account* owner = accountWithPassword(request.sUser, request.sPassword);
  if (!owner) return ResultCode::WrongCredentials;
  response.sSession = toWire(state_.sessions.open(owner->user, state_.now()));
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::sessionEnd& request, protocol::sessionEndResponse&) {
  return endSession(request.sSession);
}

ResultCode Operations::handle(const protocol::getVersion&, protocol::getVersionResponse& response) {
  response.nVersion = state_.options.protocolVersion;
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::getNews&, protocol::getNewsResponse& response) {
  response.sNews = toWire(state_.news);
  return ResultCode::Success;
}

}  // namespace parlexo::simulator
