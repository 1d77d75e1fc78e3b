// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/server_envelope.h"

#include <memory>
#include <new>
#include <sstream>

#include <stdsoap2.h>

#include "protocol/serializer.h"
#include "protocol/soap_context.h"

namespace parlexo::protocol {

namespace {

/// Returns the envelope that `write` produces; empty if out of memory.
template <class Write>
std::string writeToString(Write write) {
  const std::unique_ptr<::soap, decltype(&freeContext)> context(newStreamContext(), freeContext);
  if (!context) return {};
  std::ostringstream envelope;
  context->os = &envelope;
  setEncodingStyle(*context);
  soap_begin(context.get());
  soap_set_omode(context.get(), SOAP_ENC_PLAIN | SOAP_C_UTFSTRING);
  if (soap_begin_send(context.get()) || write(*context) || soap_end_send(context.get())) return {};
  return envelope.str();
}

std::string_view localName(std::string_view name) {
  return name.substr(name.find(':') + 1);
}

}  // namespace

RequestReader::RequestReader(std::string envelope)
    : envelope_(std::move(envelope)), context_(newStreamContext()) {
  if (!context_) return;
  context_->is = &envelope_;
  setEncodingStyle(*context_);
  soap_begin(context_);
  soap_set_imode(context_, SOAP_ENC_PLAIN);
  if (readToBody(*context_) || soap_peek_element(context_)) return;
  operation_ = localName(context_->tag);
}

RequestReader::~RequestReader() {
  freeContext(context_);
}

bool RequestReader::readFields(std::string_view operation, const Fields& fields) {
  return !operation_.empty() && readRecord(*context_, requestElement(operation), fields) == SOAP_OK;
}

std::string responseEnvelope(std::string_view operation, const Fields& fields) {
  return writeToString(
      [&](::soap& context) { return writeEnvelope(context, responseElement(operation), fields); });
}

std::string faultEnvelope(std::string_view code, std::string_view text, std::string_view detail) {
  return writeToString([&](::soap& context) {
    return writeFaultEnvelope(context, std::string(code), std::string(text), std::string(detail));
  });
}

}  // namespace parlexo::protocol
