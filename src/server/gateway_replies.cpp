// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/gateway_replies.h"

namespace parlexo::server {

using namespace Qt::StringLiterals;

namespace {

constexpr int internalError = 500;
constexpr QByteArrayView actionPrefix = "capeconnect:onlineCommunication:onlineCommunicationPortType#";

}  // namespace

QString hostText(const QHostAddress& address) {
  bool isIpv4 = false;
  const QHostAddress ipv4(address.toIPv4Address(&isIpv4));
  if (isIpv4) return ipv4.toString();
  return u"[%1]"_s.arg(address.toString());
}

QByteArray locatorDocument(const Location& location) {
  return u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<server ip=\"%1\" port=\"%2\" maxfilesize=\"%3\" maxfilesizemobile=\"%4\">\n"
         "  <versions>\n"
         "    <version product=\"client\" version=\"%5\"/>\n"
         "  </versions>\n"
         "</server>\n"_s
             .arg(hostText(location.address), QString::number(location.port),
                  QString::number(location.maxFileSize), QString::number(location.maxMobileFileSize),
                  location.clientVersion.toHtmlEscaped())
             .toUtf8();
}

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
