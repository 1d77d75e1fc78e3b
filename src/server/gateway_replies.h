// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include <QByteArray>
#include <QHostAddress>
#include <QString>

#include "protocol/contract.h"
#include "protocol/server_envelope.h"
#include "server/http_message.h"

namespace parlexo::server {

/// The path of the locator document.
inline constexpr char locatorPath[] = "/WSDLServerLocator.xml";

/// The path that operations are posted to.
inline constexpr char endpointPath[] = "/ccx/onlineCommunication";

/// The contents of the locator document.
struct Location {
  QHostAddress address;
  quint16 port = 0;
  int maxFileSize = 0;        ///< bytes
  int maxMobileFileSize = 0;  ///< bytes
  QString clientVersion;
};

/// Formats `address` as the host of a URL: IPv6 addresses in brackets, IPv4-mapped ones as IPv4.
[[nodiscard]] QString hostText(const QHostAddress& address);

/// Returns the locator document. Clients parse it line by line, so the layout is fixed down to the blanks.
[[nodiscard]] QByteArray locatorDocument(const Location& location);

/// Returns a SOAP fault with HTTP status 500. `code` is a qualified name such as "SOAP-ENV:Client".
[[nodiscard]] HttpReply soapFaultReply(std::string_view code, std::string_view reason);

/// Returns a plain-text reply.
[[nodiscard]] HttpReply plainReply(int status, const QByteArray& text);

/// Whether the SOAPAction header of `request` names `operation`.
[[nodiscard]] bool hasActionFor(const HttpRequest& request, const std::string& operation);

/// Returns the result of `perform(operation, reader)` for the operation that both the SOAPAction header and
/// the body name. For any other request calls `refuse(name)` with the name found in the body, which is empty
/// if the body is not an envelope, and returns a SOAP fault.
template <class Perform, class Refuse>
[[nodiscard]] HttpReply dispatchSoap(const HttpRequest& request, Perform&& perform, Refuse&& refuse) {
  protocol::RequestReader reader(request.body.toStdString());
  const std::string& name = reader.operation();
  HttpReply reply = soapFaultReply("SOAP-ENV:Client", "There is no operation \"" + name + "\"");
  if (name.empty()) {
    reply = soapFaultReply("SOAP-ENV:Client", "The request is not a SOAP envelope");
  } else if (!hasActionFor(request, name)) {
    reply = soapFaultReply("SOAP-ENV:Client", "SOAPAction and body name different operations");
  } else if (protocol::visitOperation(name,
                                      [&](const auto& operation) { reply = perform(operation, reader); })) {
    return reply;
  }
  refuse(QString::fromStdString(name));
  return reply;
}

}  // namespace parlexo::server
