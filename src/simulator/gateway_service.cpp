// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/gateway_service.h"

#include <optional>
#include <string_view>
#include <utility>

#include "protocol/result_code.h"
#include "server/gateway_replies.h"
#include "simulator/message_text.h"
#include "simulator/operations.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

using namespace server;

namespace {

QString toQString(std::string_view text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

template <class Request>
QString sessionToken(const Request& request) {
  if constexpr (requires { request.sSession; })
    return toText(request.sSession);
  else
    return {};
}

// Logs only the start of a token, as a complete one would let readers of the log hijack the session.
QString sessionForLog(const QString& session) {
  constexpr qsizetype shown = 8;
  return session.isEmpty() ? QString() : u" (session %1)"_s.arg(escapeForLog(session.left(shown)));
}

template <class Response>
QString outcomeForLog(const Response& response) {
  if constexpr (requires { response.nErrorCode; }) {
    const char* meaning = protocol::describe(static_cast<protocol::ResultCode>(response.nErrorCode));
    return u"code %1, %2"_s.arg(response.nErrorCode).arg(QString::fromLatin1(meaning));
  } else {
    return u"version %1"_s.arg(response.nVersion);
  }
}

QString faultForLog(const std::optional<Fault>& fault) {
  return fault ? u" [fault: %1]"_s.arg(escapeForLog(toString(*fault))) : QString();
}

void replaceText(const protocol::Fields& fields, const char* text) {
  for (const protocol::Field& field : fields) {
    if (field.type != protocol::FieldType::BorrowedText) continue;
    *static_cast<const char**>(field.value) = text;
    return;
  }
}

// Fills the response: executes the operation unless `fault` replaces its error code.
template <class Request, class Response>
void execute(Operations& operations, const std::optional<Fault>& fault, const Request& request,
             Response& response) {
  if constexpr (requires { response.nErrorCode; }) {
    const bool isReplaced = fault && fault->kind == FaultKind::Code;
    response.nErrorCode = isReplaced ? fault->number : toNumber(operations.handle(request, response));
  } else {
    (void)operations.handle(request, response);
    if (fault && fault->kind == FaultKind::Version) response.nVersion = fault->number;
  }
}

// Whether a fault of this kind replaces the whole reply. With other kinds the operation is executed.
bool replacesReply(FaultKind kind) {
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

// Returns `reply` as changed by `fault`.
HttpReply applyFault(const Fault& fault, HttpReply reply) {
  switch (fault.kind) {
    case FaultKind::Close:
      reply.ending = HttpReply::Ending::Nothing;
      return reply;
    case FaultKind::Cut:
      reply.ending = HttpReply::Ending::Half;
      return reply;
    case FaultKind::Late:
      reply.delay = std::chrono::milliseconds(fault.number);
      return reply;
    case FaultKind::HttpError:
      return {.status = 500,
              .contentType = "text/html",
              .body = "<html><body><h1>Internal Server Error</h1></body></html>\r\n"};
    case FaultKind::NotXml:
      return {.body = "The gateway is having a rest.\r\n"};
    case FaultKind::SoapFault:
      return soapFaultReply("SOAP-ENV:Server",
                            fault.text.isEmpty() ? "The gateway is out of order" : fault.text.toStdString());
    case FaultKind::Refuse:
    case FaultKind::Code:
    case FaultKind::Text:
    case FaultKind::Version:
    case FaultKind::ClientVersion:
    case FaultKind::BadLocator:
      return reply;
  }
  return reply;
}

// Removes the port, without which clients must reject the document.
QByteArray malformedLocatorDocument(const Location& location) {
  const QByteArray port = " port=\"" + QByteArray::number(location.port) + '"';
  return locatorDocument(location).replace(port, QByteArray());
}

}  // namespace

HttpReply GatewayService::answer(const HttpRequest& request) {
  QStringList lines;
  HttpReply reply = with([&](GatewayState&) {
    HttpReply routed = route(request);
    lines.swap(pendingLog_);
    return routed;
  });
  // Called without the lock, so that the callback may call the simulator.
  if (options_.log)
    for (const QString& line : std::as_const(lines)) options_.log(line);
  reply.delay += options_.latency;
  return reply;
}

bool GatewayService::refusesConnection() {
  const bool refuses = with([](GatewayState& state) { return state.faults.refusesConnection(); });
  if (refuses && options_.log) options_.log(u"connection refused [fault: refuse]"_s);
  return refuses;
}

HttpReply GatewayService::route(const HttpRequest& request) {
  const QByteArray path = request.path();
  const bool isLocator = path == locatorPath;
  if (!isLocator && path != endpointPath) return plainReply(404, "There is nothing here.\r\n");
  if (request.method != (isLocator ? "GET" : "POST")) return plainReply(405, "Not this way.\r\n");
  return isLocator ? answerLocator(request) : answerOperation(request);
}

HttpReply GatewayService::answerLocator(const HttpRequest& request) {
  const QString name = u"locator"_s;
  state_.calls.push_back({name, {}});
  const std::optional<Fault> fault = state_.faults.nextFor(name);
  appendToLog(name + faultForLog(fault));
  const Options& options = state_.options;
  Location location{.address = request.serverAddress,
                    .port = request.serverPort,
                    .maxFileSize = options.maxFileSize,
                    .maxMobileFileSize = options.maxMobileFileSize,
                    .clientVersion = options.clientVersion};
  if (!fault) return {.body = locatorDocument(location)};
  if (fault->kind == FaultKind::BadLocator) return {.body = malformedLocatorDocument(location)};
  if (fault->kind == FaultKind::ClientVersion) location.clientVersion = fault->text;
  return applyFault(*fault, {.body = locatorDocument(location)});
}

HttpReply GatewayService::answerOperation(const HttpRequest& request) {
  return dispatchSoap(
      request, [this](const auto& operation, auto& reader) { return perform(operation, reader); },
      [this](const QString& name) {
        appendToLog(u"refused a request that is not a valid call of \"%1\""_s.arg(escapeForLog(name)));
      });
}

template <class Operation>
HttpReply GatewayService::perform(const Operation& operation, protocol::RequestReader& reader) {
  const QString name = toQString(operation.name);
  typename Operation::Request request;
  const bool wellFormed = reader.read(request);
  state_.calls.push_back({name, sessionToken(request)});
  if (!wellFormed) {
    appendToLog(name + u": malformed request"_s);
    return soapFaultReply("SOAP-ENV:Client", "The request is malformed");
  }
  const std::optional<Fault> fault = state_.faults.nextFor(name);
  if (fault && replacesReply(fault->kind)) {
    appendToLog(name + sessionForLog(sessionToken(request)) + faultForLog(fault));
    return applyFault(*fault, {});
  }

  typename Operation::Response response;
  Operations operations(state_);
  execute(operations, fault, request, response);
  appendToLog(name + sessionForLog(sessionToken(request)) + u": "_s + outcomeForLog(response) +
              faultForLog(fault));
  for (const QString& line : operations.remarks()) pendingLog_.append(line);
  if (fault && fault->kind == FaultKind::Text)
    replaceText(operation.fields(response), operations.toWire(fault->text));
  HttpReply reply{.body = QByteArray::fromStdString(protocol::responseEnvelope(response))};
  return fault ? applyFault(*fault, std::move(reply)) : reply;
}

void GatewayService::appendToLog(const QString& line) {
  const QString time = state_.now().toString(u"yyyy-MM-dd HH:mm:ss"_s);
  pendingLog_.append(time + u' ' + line);
}

}  // namespace parlexo::simulator
