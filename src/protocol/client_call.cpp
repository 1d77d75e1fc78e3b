// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/client_call.h"

#include <string>

#include <stdsoap2.h>

#include "protocol/serializer.h"

namespace parlexo::protocol {

namespace {

constexpr char defaultEndpoint[] = "http://" PARLEXO_SERVICE_HOST ":8080/ccx/onlineCommunication";
constexpr char actionPrefix[] = "capeconnect:onlineCommunication:onlineCommunicationPortType#";
/// The nesting level of the body's children. A tag mismatch there means that the response element is missing
/// and another one, such as a fault, is in its place.
constexpr unsigned bodyLevel = 2;
/// The result of a call without a context.
constexpr int noContext = 16;

int sendRequest(::soap& context, const SoapCall& call) {
  const std::string element = requestElement(call.operation);
  const std::string action = call.action ? call.action : actionPrefix + std::string(call.operation);
  setEncodingStyle(context);
  soap_begin(&context);
  if (soap_begin_count(&context)) return context.error;
  if ((context.mode & SOAP_IO_LENGTH) != 0 && writeEnvelope(context, element, call.request)) {
    return context.error;
  }
  if (soap_end_count(&context)) return context.error;
  if (call.requestLength) *call.requestLength = context.count;
  if (soap_connect(&context, call.endpoint ? call.endpoint : defaultEndpoint, action.c_str()) ||
      writeEnvelope(context, element, call.request) || soap_end_send(&context)) {
    return context.error;
  }
  return SOAP_OK;
}

/// The runtime reads a well-formed envelope regardless of the HTTP status.
int httpResult(const ::soap& context) {
  const bool isError = context.status >= 300 && context.status < 600;
  return isError ? context.status : SOAP_OK;
}

bool isFault(int result) {
  return result == SOAP_CLI_FAULT || result == SOAP_SVR_FAULT || result == SOAP_FAULT;
}

/// An error reported by the gateway is an outcome. An error reported by a proxy on its behalf (502, 504) is
/// not, nor is a truncated or unreadable reply.
bool isOutcomeKnown(const ::soap& context, int result) {
  const bool isProxyError = context.status == 502 || context.status == 504;
  return result == SOAP_OK || isFault(result) || (httpResult(context) != SOAP_OK && !isProxyError);
}

int receiveResponse(::soap& context, const SoapCall& call) {
  if (readToBody(context)) return context.error;
  if (readRecord(context, responseElement(call.operation), call.response) == SOAP_OK) {
    return httpResult(context);
  }
  if (context.error == SOAP_TAG_MISMATCH && context.level == bodyLevel) soap_recv_fault(&context, 0);
  return context.error;
}

}  // namespace

int runSoapCall(::soap* context, const SoapCall& call) {
  if (!context) return noContext;
  int result = sendRequest(*context, call);
  if (result == SOAP_OK) {
    if (call.outcomeUnknown) *call.outcomeUnknown = true;
    result = receiveResponse(*context, call);
    if (call.outcomeUnknown) *call.outcomeUnknown = !isOutcomeKnown(*context, result);
  }
  // Ignores an error on closing: the result of the call is more useful.
  soap_closesock(context);
  return result;
}

}  // namespace parlexo::protocol
