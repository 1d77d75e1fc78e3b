// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include <QByteArray>
#include <QString>

#include "protocol/contract.h"
#include "protocol/server_envelope.h"
#include "server/http_message.h"

namespace parlexo::server {

/// The path that operations are posted to.
inline constexpr char endpointPath[] = "/ccx/onlineCommunication";

/// A SOAP fault under HTTP status 500; `code` is a qualified name like "SOAP-ENV:Client".
[[nodiscard]] HttpReply soapFaultReply(std::string_view code, std::string_view reason);

/// A reply of plain text.
[[nodiscard]] HttpReply plainReply(int status, const QByteArray& text);

/// Whether the request's SOAPAction header names `operation`.
[[nodiscard]] bool hasActionFor(const HttpRequest& request, const std::string& operation);

/// Calls `perform(operation, reader)` for the operation that both the SOAPAction header and the body name,
/// and returns its reply. A request that is no such call gets a SOAP fault, after `refuse(name)` with the
/// name found in the body, which is empty when there is no envelope.
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
