// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/client_call.h"

#include <string>

#include <stdsoap2.h>

#include "protocol/serializer.h"

namespace parlexo::protocol {

namespace {

constexpr char defaultEndpoint[] = "http://" PARLEXO_SERVICE_HOST ":8080/ccx/onlineCommunication";
constexpr char actionPrefix[] = "capeconnect:onlineCommunication:onlineCommunicationPortType#";
/// The nesting level of the body's children: a mismatch there means that another element stands in the
/// place of the response.
constexpr unsigned bodyLevel = 2;

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

/// The runtime reads a well-formed envelope whatever the HTTP status was.
int httpVerdict(const ::soap& context) {
  const bool isError = context.status >= 300 && context.status < 600;
  return isError ? context.status : SOAP_OK;
}

bool isFault(int result) {
  return result == SOAP_CLI_FAULT || result == SOAP_SVR_FAULT || result == SOAP_FAULT;
}

/// An error that the gateway reports is an answer. One that a proxy reports for it (502, 504) is none, nor is
/// a reply that breaks off or can't be read.
bool tellsTheOutcome(const ::soap& context, int result) {
  const bool isProxysError = context.status == 502 || context.status == 504;
  return result == SOAP_OK || isFault(result) || (httpVerdict(context) != SOAP_OK && !isProxysError);
}

int receiveResponse(::soap& context, const SoapCall& call) {
  if (readToBody(context)) return context.error;
  if (readRecord(context, responseElement(call.operation), call.response) == SOAP_OK) {
    return httpVerdict(context);
  }
  if (context.error == SOAP_TAG_MISMATCH && context.level == bodyLevel) soap_recv_fault(&context, 0);
  return context.error;
}

}  // namespace

int runSoapCall(::soap* context, const SoapCall& call) {
  int result = sendRequest(*context, call);
  if (result == SOAP_OK) {
    if (call.outcomeUnknown) *call.outcomeUnknown = true;
    result = receiveResponse(*context, call);
    if (call.outcomeUnknown) *call.outcomeUnknown = !tellsTheOutcome(*context, result);
  }
  // Closing may report an error of its own; the first one is the one that tells.
  soap_closesock(context);
  return result;
}

}  // namespace parlexo::protocol
