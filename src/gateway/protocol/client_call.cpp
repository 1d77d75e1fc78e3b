#include "gateway/protocol/client_call.h"

#include <string>

#include <stdsoap2.h>

#include "gateway/protocol/serializer.h"

namespace parlexo::protocol {

namespace {

constexpr char defaultEndpoint[] = "http://" PARLEXO_SERVICE_HOST ":8080/ccx/onlineCommunication";
constexpr char actionPrefix[] = "capeconnect:onlineCommunication:onlineCommunicationPortType#";
/// The nesting level of the body's children: a mismatch there means that another element stands in the
/// place of the response.
constexpr unsigned bodyLevel = 2;

int sendRequest(::soap& context, const Exchange& exchange) {
  const std::string element = requestElement(exchange.operation);
  const std::string action =
      exchange.action ? exchange.action : actionPrefix + std::string(exchange.operation);
  setEncodingStyle(context);
  soap_begin(&context);
  if (soap_begin_count(&context)) return context.error;
  if ((context.mode & SOAP_IO_LENGTH) != 0 && writeEnvelope(context, element, exchange.request)) {
    return context.error;
  }
  if (soap_end_count(&context) ||
      soap_connect(&context, exchange.endpoint ? exchange.endpoint : defaultEndpoint, action.c_str()) ||
      writeEnvelope(context, element, exchange.request) || soap_end_send(&context)) {
    return context.error;
  }
  return SOAP_OK;
}

/// The runtime reads a well-formed envelope whatever the HTTP status was.
int httpVerdict(const ::soap& context) {
  const bool isError = context.status >= 300 && context.status < 600;
  return isError ? context.status : SOAP_OK;
}

int receiveResponse(::soap& context, const Exchange& exchange) {
  if (readToBody(context)) return context.error;
  if (readRecord(context, responseElement(exchange.operation), exchange.response) == SOAP_OK) {
    return httpVerdict(context);
  }
  if (context.error == SOAP_TAG_MISMATCH && context.level == bodyLevel) soap_recv_fault(&context, 0);
  return context.error;
}

}  // namespace

int runExchange(::soap* context, const Exchange& exchange) {
  int result = sendRequest(*context, exchange);
  if (result == SOAP_OK) result = receiveResponse(*context, exchange);
  // Closing may report an error of its own; the first one is the one that tells.
  soap_closesock(context);
  return result;
}

}  // namespace parlexo::protocol
