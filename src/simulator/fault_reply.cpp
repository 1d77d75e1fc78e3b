// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/fault_reply.h"

#include <utility>

#include "server/gateway_replies.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

const QString defaultReason = u"The gateway is out of order"_s;

}  // namespace

bool preventsOperation(FaultKind kind) {
  switch (kind) {
    case FaultKind::HttpError:
    case FaultKind::NotXml:
    case FaultKind::SoapFault:
      return true;
    case FaultKind::Refuse:
    case FaultKind::Close:
    case FaultKind::Cut:
    case FaultKind::Late:
    case FaultKind::Code:
    case FaultKind::Text:
    case FaultKind::Version:
    case FaultKind::ClientVersion:
    case FaultKind::BadLocator:
      return false;
  }
  return false;
}

server::HttpReply misbehave(const Fault& fault, server::HttpReply proper) {
  switch (fault.kind) {
    case FaultKind::Close:
      proper.ending = server::HttpReply::Ending::Nothing;
      return proper;
    case FaultKind::Cut:
      proper.ending = server::HttpReply::Ending::Half;
      return proper;
    case FaultKind::Late:
      proper.delay = std::chrono::milliseconds(fault.number);
      return proper;
    case FaultKind::HttpError:
      return {.status = 500,
              .contentType = "text/html",
              .body = "<html><body><h1>Internal Server Error</h1></body></html>\r\n"};
    case FaultKind::NotXml:
      return {.body = "The gateway is having a rest.\r\n"};
    case FaultKind::SoapFault:
      return server::soapFaultReply("SOAP-ENV:Server",
                                    (fault.text.isEmpty() ? defaultReason : fault.text).toStdString());
    case FaultKind::Refuse:
    case FaultKind::Code:
    case FaultKind::Text:
    case FaultKind::Version:
    case FaultKind::ClientVersion:
    case FaultKind::BadLocator:
      return proper;
  }
  return proper;
}

QByteArray malformedLocatorDocument(const server::Location& location) {
  const QByteArray port = " port=\"" + QByteArray::number(location.port) + '"';
  return server::locatorDocument(location).replace(port, QByteArray());
}

}  // namespace parlexo::simulator
