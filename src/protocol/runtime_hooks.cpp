// SPDX-License-Identifier: GPL-3.0-or-later
// The symbols that the runtime requires of a program that does not use its code generator: the namespace
// table, and hooks for headers, faults and referenced elements. Their names are given by the runtime.

#include <stdsoap2.h>

#include "protocol/element_reading.h"

struct Namespace namespaces[] = {
    {"SOAP-ENV", "http://schemas.xmlsoap.org/soap/envelope/", "http://www.w3.org/*/soap-envelope", nullptr},
    {"SOAP-ENC", "http://schemas.xmlsoap.org/soap/encoding/", "http://www.w3.org/*/soap-encoding", nullptr},
    {"xsi", "http://www.w3.org/2001/XMLSchema-instance", "http://www.w3.org/*/XMLSchema-instance", nullptr},
    {"xsd", "http://www.w3.org/2001/XMLSchema", "http://www.w3.org/*/XMLSchema", nullptr},
    {"ns3", "http://www.parlexo.example/onlineCommunication/binding", nullptr, nullptr},
    {nullptr, nullptr, nullptr, nullptr}};

/// A fault in its SOAP 1.1 and SOAP 1.2 forms; missing parts are null. The context owns the strings.
struct SOAP_ENV__Fault {
  char* faultcode;
  char* faultstring;
  char* faultactor;
  char* detail;
  char* codeValue;
  char* subcodeValue;
  char* reasonText;
  char* node;
  char* role;
  char* newDetail;
};

namespace parlexo::protocol {

namespace {

bool isAt(::soap& context, const char* tag) {
  return soap_match_tag(&context, context.tag, tag) == SOAP_OK;
}

int readSubcode(::soap& context, SOAP_ENV__Fault& fault) {
  return readElement(context, "SOAP-ENV:Subcode", [&] {
    if (!isAt(context, "SOAP-ENV:Value")) return skipElement(context);
    return readText(context, "SOAP-ENV:Value", &fault.subcodeValue);
  });
}

int readCode(::soap& context, SOAP_ENV__Fault& fault) {
  return readElement(context, "SOAP-ENV:Code", [&] {
    if (isAt(context, "SOAP-ENV:Value")) return readText(context, "SOAP-ENV:Value", &fault.codeValue);
    if (isAt(context, "SOAP-ENV:Subcode")) return readSubcode(context, fault);
    return skipElement(context);
  });
}

int readReason(::soap& context, SOAP_ENV__Fault& fault) {
  return readElement(context, "SOAP-ENV:Reason", [&] {
    if (!isAt(context, "SOAP-ENV:Text")) return skipElement(context);
    return readText(context, "SOAP-ENV:Text", &fault.reasonText);
  });
}

/// Reads the detail of a fault, which may be any markup, without parsing it.
int readMarkup(::soap& context, const char* tag, char** markup) {
  return soap_inliteral(&context, tag, markup) ? SOAP_OK : context.error;
}

/// Codes are read as plain text. Read as qualified names, the sender's prefix would be replaced by the
/// runtime's own, and the runtime would then not recognise the code.
int readFaultPart(::soap& context, SOAP_ENV__Fault& fault) {
  if (isAt(context, "faultcode")) return readText(context, "faultcode", &fault.faultcode);
  if (isAt(context, "faultstring")) return readText(context, "faultstring", &fault.faultstring);
  if (isAt(context, "faultactor")) return readText(context, "faultactor", &fault.faultactor);
  if (isAt(context, "detail")) return readMarkup(context, "detail", &fault.detail);
  if (isAt(context, "SOAP-ENV:Code")) return readCode(context, fault);
  if (isAt(context, "SOAP-ENV:Reason")) return readReason(context, fault);
  if (isAt(context, "SOAP-ENV:Node")) return readText(context, "SOAP-ENV:Node", &fault.node);
  if (isAt(context, "SOAP-ENV:Role")) return readText(context, "SOAP-ENV:Role", &fault.role);
  if (isAt(context, "SOAP-ENV:Detail")) return readMarkup(context, "SOAP-ENV:Detail", &fault.newDetail);
  return skipElement(context);
}

/// Creates the fault if there is none.
SOAP_ENV__Fault& ensureFault(::soap* context) {
  soap_fault(context);
  return *context->fault;
}

/// The part of the fault that belongs to the context's SOAP version. The runtime reads it and may set it.
const char** partForVersion(::soap* context, char* SOAP_ENV__Fault::*soap11, char* SOAP_ENV__Fault::*soap12) {
  SOAP_ENV__Fault& fault = ensureFault(context);
  return const_cast<const char**>(context->version == 2 ? &(fault.*soap12) : &(fault.*soap11));
}

}  // namespace

}  // namespace parlexo::protocol

using parlexo::protocol::ensureFault;
using parlexo::protocol::partForVersion;

void soap_header(struct soap*) {}

void soap_serializeheader(struct soap*) {}

int soap_putheader(struct soap*) {
  return SOAP_OK;
}

/// Returns a tag mismatch if there is no header, as the runtime expects.
int soap_getheader(struct soap* context) {
  context->part = SOAP_IN_HEADER;
  const int result = parlexo::protocol::readElement(*context, "SOAP-ENV:Header",
                                                    [&] { return parlexo::protocol::skipElement(*context); });
  context->part = SOAP_END_HEADER;
  return result;
}

void soap_fault(struct soap* context) {
  if (context->fault) return;
  context->fault = static_cast<SOAP_ENV__Fault*>(soap_malloc(context, sizeof(SOAP_ENV__Fault)));
  if (context->fault) *context->fault = SOAP_ENV__Fault{};
}

void soap_serializefault(struct soap* context) {
  soap_fault(context);
}

/// Not used: writeFaultEnvelope() writes faults.
int soap_putfault(struct soap*) {
  return SOAP_OK;
}

int soap_getfault(struct soap* context) {
  context->fault = nullptr;
  SOAP_ENV__Fault& fault = ensureFault(context);
  return parlexo::protocol::readElement(*context, "SOAP-ENV:Fault",
                                        [&] { return parlexo::protocol::readFaultPart(*context, fault); });
}

const char** soap_faultcode(struct soap* context) {
  return partForVersion(context, &SOAP_ENV__Fault::faultcode, &SOAP_ENV__Fault::codeValue);
}

const char** soap_faultsubcode(struct soap* context) {
  return partForVersion(context, &SOAP_ENV__Fault::faultcode, &SOAP_ENV__Fault::subcodeValue);
}

const char** soap_faultstring(struct soap* context) {
  return partForVersion(context, &SOAP_ENV__Fault::faultstring, &SOAP_ENV__Fault::reasonText);
}

const char** soap_faultdetail(struct soap* context) {
  return partForVersion(context, &SOAP_ENV__Fault::detail, &SOAP_ENV__Fault::newDetail);
}

const char* soap_fault_subcode(struct soap* context) {
  return *soap_faultsubcode(context);
}

const char* soap_fault_string(struct soap* context) {
  return *soap_faultstring(context);
}

const char* soap_fault_detail(struct soap* context) {
  return *soap_faultdetail(context);
}

extern "C" {

/// Not used: the serializer reads referenced elements itself.
void* soap_getelement(struct soap* context, const char* /*tag*/, int* /*type*/) {
  context->error = SOAP_TAG_MISMATCH;
  return nullptr;
}

int soap_putelement(struct soap* /*context*/, const void* /*value*/, const char* /*tag*/, int /*id*/,
                    int /*type*/) {
  return SOAP_OK;
}

void soap_markelement(struct soap* /*context*/, const void* /*value*/, int /*type*/) {}

void* soap_dupelement(struct soap* /*context*/, const void* /*value*/, int /*type*/) {
  return nullptr;
}

void soap_delelement(const void* /*value*/, int /*type*/) {}

}  // extern "C"
