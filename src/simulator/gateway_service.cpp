// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/gateway_service.h"

#include <string_view>

#include "protocol/result_code.h"
#include "server/gateway_replies.h"
#include "simulator/fault_reply.h"
#include "simulator/message_text.h"
#include "simulator/operations.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

using namespace server;

namespace {

QString nameOf(std::string_view name) {
  return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

template <class Request>
QString sessionOf(const Request& request) {
  if constexpr (requires { request.sSession; })
    return textOf(request.sSession);
  else
    return {};
}

// The beginning of a token tells sessions apart; the whole of it would let a reader of the log take one over.
QString sessionForLog(const QString& session) {
  constexpr qsizetype shown = 8;
  return session.isEmpty() ? QString() : u" (session %1)"_s.arg(forLog(session.left(shown)));
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
  return fault ? u" [fault: %1]"_s.arg(forLog(describe(*fault))) : QString();
}

void replaceText(const protocol::Fields& fields, const char* text) {
  for (const protocol::Field& field : fields) {
    if (field.type != protocol::FieldType::BorrowedText) continue;
    *static_cast<const char**>(field.value) = text;
    return;
  }
}

// Lets the gateway work, unless the fault says what the answer is.
template <class Request, class Response>
void carryOut(Operations& operations, const std::optional<Fault>& fault, const Request& request,
              Response& response) {
  if constexpr (requires { response.nErrorCode; }) {
    if (fault && fault->kind == FaultKind::Code) {
      response.nErrorCode = fault->number;
      return;
    }
  }
  operations.handle(request, response);
  if constexpr (requires { response.nVersion; })
    if (fault && fault->kind == FaultKind::Version) response.nVersion = fault->number;
}

}  // namespace

HttpReply GatewayService::answer(const HttpRequest& request) {
  QStringList lines;
  HttpReply reply = with([&](ServiceState&) {
    HttpReply routed = route(request);
    lines.swap(unwrittenLog_);
    return routed;
  });
  // Outside the lock, so that whoever takes the log may ask the simulator.
  if (options_.log)
    for (const QString& line : std::as_const(lines)) options_.log(line);
  reply.delay += options_.latency;
  return reply;
}

bool GatewayService::refusesConnection() {
  const bool refuses = with([](ServiceState& state) { return state.faults.refusesConnection(); });
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
  const std::optional<Fault> fault = state_.faults.forCall(name);
  note(name + faultForLog(fault));
  const Options& options = state_.gateway.options;
  Location location{request.serverAddress, request.serverPort, options.maxFileSize, options.maxMobileFileSize,
                    options.clientVersion};
  if (!fault) return {.body = locatorDocument(location)};
  if (fault->kind == FaultKind::BadLocator) return {.body = malformedLocatorDocument(location)};
  if (fault->kind == FaultKind::ClientVersion) location.clientVersion = fault->text;
  return misbehave(*fault, {.body = locatorDocument(location)});
}

HttpReply GatewayService::answerOperation(const HttpRequest& request) {
  return dispatchSoap(
      request, [this](const auto& operation, auto& reader) { return perform(operation, reader); },
      [this](const QString& name) {
        note(u"refused a request that is not a valid call of \"%1\""_s.arg(forLog(name)));
      });
}

template <class Operation>
HttpReply GatewayService::perform(const Operation& operation, protocol::RequestReader& reader) {
  const QString name = nameOf(operation.name);
  typename Operation::Request request;
  const bool wellFormed = reader.read(request);
  state_.calls.push_back({name, sessionOf(request)});
  if (!wellFormed) {
    note(name + u": malformed request"_s);
    return soapFaultReply("SOAP-ENV:Client", "The request is malformed");
  }
  const std::optional<Fault> fault = state_.faults.forCall(name);
  if (fault && preventsOperation(fault->kind)) {
    note(name + sessionForLog(sessionOf(request)) + faultForLog(fault));
    return misbehave(*fault, {});
  }

  typename Operation::Response response;
  Operations operations(state_.gateway);
  carryOut(operations, fault, request, response);
  note(name + sessionForLog(sessionOf(request)) + u": "_s + outcomeForLog(response) + faultForLog(fault));
  for (const QString& line : operations.remarks()) unwrittenLog_.append(line);
  if (fault && fault->kind == FaultKind::Text)
    replaceText(operation.fields(response), operations.keep(fault->text));
  HttpReply reply{.body = QByteArray::fromStdString(protocol::responseEnvelope(response))};
  return fault ? misbehave(*fault, std::move(reply)) : reply;
}

void GatewayService::note(const QString& line) {
  const QString time = state_.gateway.now().toString(u"yyyy-MM-dd HH:mm:ss"_s);
  unwrittenLog_.append(time + u' ' + line);
}

}  // namespace parlexo::simulator
