#include "simulator/fault_reply.h"

#include <utility>

#include "protocol/server_envelope.h"

namespace parlexo::simulator {

namespace {

constexpr int internalError = 500;
const QString defaultReason = QStringLiteral("The gateway is out of order");

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

HttpReply misbehave(const Fault& fault, HttpReply proper) {
  switch (fault.kind) {
    case FaultKind::Close:
      proper.ending = HttpReply::Ending::Nothing;
      return proper;
    case FaultKind::Cut:
      proper.ending = HttpReply::Ending::Half;
      return proper;
    case FaultKind::Late:
      proper.delay = std::chrono::milliseconds(fault.number);
      return proper;
    case FaultKind::HttpError:
      return {.status = internalError,
              .contentType = "text/html",
              .body = "<html><body><h1>Internal Server Error</h1></body></html>\r\n"};
    case FaultKind::NotXml:
      return {.body = "The gateway is having a rest.\r\n"};
    case FaultKind::SoapFault:
      return soapFaultReply("SOAP-ENV:Server",
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

HttpReply soapFaultReply(std::string_view code, std::string_view reason) {
  return {.status = internalError, .body = QByteArray::fromStdString(protocol::faultEnvelope(code, reason))};
}

HttpReply plainReply(int status, const QByteArray& text) {
  return {.status = status, .contentType = "text/plain", .body = text};
}

}  // namespace parlexo::simulator
