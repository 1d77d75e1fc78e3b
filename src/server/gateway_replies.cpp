// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/soap_dispatch.h"

namespace parlexo::server {

namespace {

constexpr int internalError = 500;
constexpr QByteArrayView actionPrefix = "capeconnect:onlineCommunication:onlineCommunicationPortType#";

}  // namespace

HttpReply soapFaultReply(std::string_view code, std::string_view reason) {
  return {.status = internalError, .body = QByteArray::fromStdString(protocol::faultEnvelope(code, reason))};
}

HttpReply plainReply(int status, const QByteArray& text) {
  return {.status = status, .contentType = "text/plain", .body = text};
}

bool hasActionFor(const HttpRequest& request, const std::string& operation) {
  QByteArray action = request.header("soapaction");
  if (action.size() >= 2 && action.startsWith('"') && action.endsWith('"'))
    action = action.mid(1, action.size() - 2);
  return action == actionPrefix.toByteArray() + QByteArray::fromStdString(operation);
}

}  // namespace parlexo::server
