// What the runtime expects of a program that does not use its code generator: the namespace table, and hooks
// for headers, faults and referenced elements. Their names, and the namespace they stand in, are the
// runtime's.

#include <stdsoap2.h>

#include "gateway/protocol/runtime_types.h"

struct Namespace namespaces[] = {
    {"SOAP-ENV", "http://schemas.xmlsoap.org/soap/envelope/", "http://www.w3.org/*/soap-envelope", nullptr},
    {"SOAP-ENC", "http://schemas.xmlsoap.org/soap/encoding/", "http://www.w3.org/*/soap-encoding", nullptr},
    {"xsi", "http://www.w3.org/2001/XMLSchema-instance", "http://www.w3.org/*/XMLSchema-instance", nullptr},
    {"xsd", "http://www.w3.org/2001/XMLSchema", "http://www.w3.org/*/XMLSchema", nullptr},
    {"ns3", "http://" PARLEXO_SERVICE_HOST "/onlineCommunication/binding", nullptr, nullptr},
    {nullptr, nullptr, nullptr, nullptr}};

/// A fault in its SOAP 1.1 and its SOAP 1.2 form; what was absent is null. The texts are the context's.
struct SOAP_ENV__Fault {
  const char* faultcode;
  const char* faultstring;
  const char* faultactor;
  const char* detail;
  const char* codeValue;
  const char* subcodeValue;
  const char* reasonText;
  const char* node;
  const char* role;
  const char* newDetail;
};

namespace parlexo::protocol {

namespace {

/// Values of the runtime's flag for how a text is read.
constexpr int plainText = 1;
constexpr int qualifiedName = 2;

bool isAt(::soap* context, const char* tag) {
  return soap_match_tag(context, context->tag, tag) == SOAP_OK;
}

int readText(::soap* context, const char* tag, const char** text, int flag = plainText) {
  char* read = nullptr;
  if (!soap_instring(context, tag, &read, "", textType, flag, 0, -1, nullptr)) return context->error;

  *text = read;
  return SOAP_OK;
}

/// Reads the element `tag` and lets `readChild` read each of its children.
template <class ReadChild>
int readElement(::soap* context, const char* tag, ReadChild readChild) {
  if (soap_element_begin_in(context, tag, 0, nullptr)) return context->error;
  if (!context->body) return SOAP_OK;
  while (soap_peek_element(context) == SOAP_OK) {
    if (readChild()) return context->error;
  }
  if (context->error != SOAP_NO_TAG) return context->error;
  context->error = SOAP_OK;
  return soap_element_end_in(context, tag);
}

int readSubcode(::soap* context, SOAP_ENV__Fault& fault) {
  return readElement(context, "SOAP-ENV:Subcode", [&] {
    if (isAt(context, "SOAP-ENV:Value")) {
      return readText(context, "SOAP-ENV:Value", &fault.subcodeValue, qualifiedName);
    }
    return soap_ignore(context);
  });
}

int readCode(::soap* context, SOAP_ENV__Fault& fault) {
  return readElement(context, "SOAP-ENV:Code", [&] {
    if (isAt(context, "SOAP-ENV:Value")) {
      return readText(context, "SOAP-ENV:Value", &fault.codeValue, qualifiedName);
    }
    if (isAt(context, "SOAP-ENV:Subcode")) return readSubcode(context, fault);
    return soap_ignore(context);
  });
}

int readReason(::soap* context, SOAP_ENV__Fault& fault) {
  return readElement(context, "SOAP-ENV:Reason", [&] {
    if (isAt(context, "SOAP-ENV:Text")) return readText(context, "SOAP-ENV:Text", &fault.reasonText);
    return soap_ignore(context);
  });
}

/// Details are markup of whatever kind; they are kept as they stand.
int readMarkup(::soap* context, const char* tag, const char** markup) {
  char* read = nullptr;
  if (!soap_inliteral(context, tag, &read)) return context->error;
  *markup = read;
  return SOAP_OK;
}

int readFaultPart(::soap* context, SOAP_ENV__Fault& fault) {
  if (isAt(context, "faultcode")) return readText(context, "faultcode", &fault.faultcode, qualifiedName);
  if (isAt(context, "faultstring")) return readText(context, "faultstring", &fault.faultstring);
  if (isAt(context, "faultactor")) return readText(context, "faultactor", &fault.faultactor);
  if (isAt(context, "detail")) return readMarkup(context, "detail", &fault.detail);
  if (isAt(context, "SOAP-ENV:Code")) return readCode(context, fault);
  if (isAt(context, "SOAP-ENV:Reason")) return readReason(context, fault);
  if (isAt(context, "SOAP-ENV:Node")) return readText(context, "SOAP-ENV:Node", &fault.node);
  if (isAt(context, "SOAP-ENV:Role")) return readText(context, "SOAP-ENV:Role", &fault.role);
  if (isAt(context, "SOAP-ENV:Detail")) return readMarkup(context, "SOAP-ENV:Detail", &fault.newDetail);
  return soap_ignore(context);
}

bool isVersion2(const ::soap* context) {
  return context->version == 2;
}

SOAP_ENV__Fault& faultOf(::soap* context) {
  soap_fault(context);
  return *context->fault;
}

}  // namespace

bool readReferencedElement(::soap& context, int* type) {
  *type = *context.id ? soap_lookup_type(&context, context.id) : 0;
  if (*type == textType) return soap_instring(&context, nullptr, nullptr, "", textType, 1, 0, -1, nullptr);
  context.error = SOAP_TAG_MISMATCH;
  return false;
}

}  // namespace parlexo::protocol

using parlexo::protocol::faultOf;
using parlexo::protocol::isVersion2;

void soap_header(struct soap*) {}

void soap_serializeheader(struct soap*) {}

int soap_putheader(struct soap*) {
  return SOAP_OK;
}

/// "Tag mismatch" is how the runtime is told that there was no header.
int soap_getheader(struct soap* context) {
  context->part = SOAP_IN_HEADER;
  const int result =
      parlexo::protocol::readElement(context, "SOAP-ENV:Header", [&] { return soap_ignore(context); });
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

/// Faults are written as an envelope of their own, never by the runtime.
int soap_putfault(struct soap*) {
  return SOAP_OK;
}

int soap_getfault(struct soap* context) {
  context->fault = nullptr;
  SOAP_ENV__Fault& fault = faultOf(context);
  return parlexo::protocol::readElement(context, "SOAP-ENV:Fault",
                                        [&] { return parlexo::protocol::readFaultPart(context, fault); });
}

const char** soap_faultcode(struct soap* context) {
  SOAP_ENV__Fault& fault = faultOf(context);
  return isVersion2(context) ? &fault.codeValue : &fault.faultcode;
}

const char** soap_faultsubcode(struct soap* context) {
  SOAP_ENV__Fault& fault = faultOf(context);
  return isVersion2(context) ? &fault.subcodeValue : &fault.faultcode;
}

const char** soap_faultstring(struct soap* context) {
  SOAP_ENV__Fault& fault = faultOf(context);
  return isVersion2(context) ? &fault.reasonText : &fault.faultstring;
}

const char** soap_faultdetail(struct soap* context) {
  SOAP_ENV__Fault& fault = faultOf(context);
  return isVersion2(context) ? &fault.newDetail : &fault.detail;
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

void* soap_getelement(struct soap* context, const char* /*tag*/, int* type) {
  return parlexo::protocol::readReferencedElement(*context, type) ? context : nullptr;
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
