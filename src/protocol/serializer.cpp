// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/serializer.h"

#include <algorithm>
#include <optional>

#include <stdsoap2.h>

#include "protocol/element_reading.h"
#include "protocol/field_text.h"
#include "protocol/xml_text.h"

namespace parlexo::protocol {

namespace {

constexpr char encodingStyle[] = "http://schemas.xmlsoap.org/soap/encoding/";
constexpr int noId = -1;

int writeText(::soap& context, const char* name, const char* xmlType, const std::string& text) {
  if (soap_element_begin_out(&context, name, noId, xmlType) || soap_string_out(&context, text.c_str(), 0) ||
      soap_element_end_out(&context, name)) {
    return context.error;
  }
  return SOAP_OK;
}

int writeBinary(::soap& context, const char* name, const BinaryData& value) {
  if (soap_element_begin_out(&context, name, noId, "xsd:base64Binary") ||
      soap_putbase64(&context, value.data, value.length) || soap_element_end_out(&context, name)) {
    return context.error;
  }
  return SOAP_OK;
}

int writeOwnedText(::soap& context, const char* name, const std::string& text) {
  if (hasForbiddenCharacters(text))
    return writeText(context, name, "xsd:string", withoutForbiddenCharacters(text));
  // Not copied, because it may be a password, of which only the owner's copy is wiped.
  return writeText(context, name, "xsd:string", text);
}

int writeBorrowedText(::soap& context, const char* name, const char* text) {
  if (!text) return SOAP_OK;
  return writeText(context, name, "xsd:string", withoutForbiddenCharacters(text));
}

int writeField(::soap& context, const Field& field) {
  switch (field.type) {
    case FieldType::Text:
      return writeOwnedText(context, field.name, *static_cast<const std::string*>(field.value));
    case FieldType::BorrowedText:
      return writeBorrowedText(context, field.name, *static_cast<const char* const*>(field.value));
    case FieldType::Integer:
      return writeText(context, field.name, "xsd:int",
                       toText(*static_cast<const std::int32_t*>(field.value)));
    case FieldType::Real:
      return writeText(context, field.name, "xsd:double", toText(*static_cast<const double*>(field.value)));
    case FieldType::Boolean:
      return writeText(context, field.name, "xsd:boolean", toText(*static_cast<const bool*>(field.value)));
    case FieldType::Binary:
      return writeBinary(context, field.name, *static_cast<const BinaryData*>(field.value));
  }
  return SOAP_TYPE;
}

int beginEnvelope(::soap& context) {
  if (soap_envelope_begin_out(&context) || soap_putheader(&context) || soap_body_begin_out(&context)) {
    return context.error;
  }
  return SOAP_OK;
}

int endEnvelope(::soap& context) {
  if (soap_body_end_out(&context) || soap_envelope_end_out(&context)) return context.error;
  return SOAP_OK;
}

/// The text of a field as received. Values are assigned to the record only after the whole message has been
/// read, because a reference may be resolved as late as that.
struct ReceivedField {
  const Field* field;
  char* text = nullptr;
  bool isPresent = false;
};
using ReceivedFields = std::vector<ReceivedField>;

/// Reads the current element into the first field of that name that is not present yet; skips it if there is
/// none.
int readField(::soap& context, ReceivedFields& received) {
  for (ReceivedField& each : received) {
    if (each.isPresent || soap_match_tag(&context, context.tag, each.field->name) != SOAP_OK) continue;
    each.isPresent = true;
    return readText(context, each.field->name, &each.text);
  }
  return skipElement(context);
}

/// Reads an element after the first one in the body: a value that a reference points to.
int readReferencedElement(::soap& context) {
  const bool isReferenced = *context.id && soap_lookup_type(&context, context.id) == textType;
  return isReferenced ? readText(context, nullptr, nullptr) : skipElement(context);
}

int readMessage(::soap& context, const std::string& element, ReceivedFields& received) {
  if (readElement(context, element.c_str(), [&] { return readField(context, received); }) ||
      readSiblings(context, [&] { return readReferencedElement(context); }) || soap_body_end_in(&context) ||
      soap_envelope_end_in(&context) || soap_end_recv(&context)) {
    return context.error;
  }
  return SOAP_OK;
}

template <class Value>
bool assign(void* member, const std::optional<Value>& value) {
  if (value) *static_cast<Value*>(member) = *value;
  return value.has_value();
}

bool readBinary(::soap& context, std::string_view text, BinaryData& value) {
  const auto bytes = fromBase64(text);
  if (!bytes) return false;
  auto* copy = static_cast<unsigned char*>(soap_malloc(&context, bytes->size() + 1));
  if (!copy) return false;
  std::copy(bytes->begin(), bytes->end(), copy);
  value = {copy, static_cast<std::int32_t>(bytes->size())};
  return true;
}

/// The context owns the copy. Returns false if out of memory.
bool assignBorrowed(::soap& context, void* member, const std::string& text) {
  const char* copy = soap_strdup(&context, text.c_str());
  *static_cast<const char**>(member) = copy;
  return copy != nullptr;
}

/// Converts `text` and assigns it to the field. Returns false if it is not of the field's type.
bool readValue(::soap& context, const Field& field, const std::string& text) {
  switch (field.type) {
    case FieldType::Text:
      *static_cast<std::string*>(field.value) = text;
      return true;
    case FieldType::BorrowedText:
      return assignBorrowed(context, field.value, text);
    case FieldType::Integer:
      return assign(field.value, integerFromText(text));
    case FieldType::Real:
      return assign(field.value, realFromText(text));
    case FieldType::Boolean:
      return assign(field.value, booleanFromText(text));
    case FieldType::Binary:
      return readBinary(context, text, *static_cast<BinaryData*>(field.value));
  }
  return false;
}

bool readValue(::soap& context, const ReceivedField& received) {
  const Field& field = *received.field;
  return readsUnicode(context) ? readValue(context, field, decodeContent(received.text))
                               : readValue(context, field, received.text);
}

/// Numbers other than the code may be missing only if the code reports an error. Read as 0, a missing balance
/// would look like an empty account.
bool hasRequiredNumbers(const ReceivedFields& received) {
  const auto lacksCode = [](const ReceivedField& each) {
    return !each.text && each.field->type == FieldType::Integer;
  };
  const auto reportsSuccess = [](const ReceivedField& each) {
    return each.field->type == FieldType::Integer &&
           *static_cast<const std::int32_t*>(each.field->value) == 0;
  };
  const auto lacksNumber = [](const ReceivedField& each) {
    return !each.text && each.field->type == FieldType::Real;
  };
  if (std::any_of(received.begin(), received.end(), lacksCode)) return false;
  return std::none_of(received.begin(), received.end(), reportsSuccess) ||
         std::none_of(received.begin(), received.end(), lacksNumber);
}

}  // namespace

std::string requestElement(std::string_view operation) {
  return "ns3:" + std::string(operation);
}

std::string responseElement(std::string_view operation) {
  return requestElement(operation) + "Response";
}

void setEncodingStyle(::soap& context) {
  context.encodingStyle = encodingStyle;
}

int writeEnvelope(::soap& context, const std::string& element, const Fields& fields) {
  if (beginEnvelope(context) || soap_element_begin_out(&context, element.c_str(), noId, nullptr)) {
    return context.error;
  }
  for (const Field& field : fields) {
    if (writeField(context, field)) return context.error;
  }
  if (soap_element_end_out(&context, element.c_str())) return context.error;
  return endEnvelope(context);
}

int writeFaultEnvelope(::soap& context, const std::string& code, const std::string& text,
                       const std::string& detail) {
  if (beginEnvelope(context) || soap_element_begin_out(&context, "SOAP-ENV:Fault", noId, nullptr) ||
      writeText(context, "faultcode", "xsd:QName", code) ||
      writeText(context, "faultstring", "xsd:string", withoutForbiddenCharacters(text))) {
    return context.error;
  }
  if (!detail.empty() && writeText(context, "detail", "xsd:string", withoutForbiddenCharacters(detail))) {
    return context.error;
  }
  if (soap_element_end_out(&context, "SOAP-ENV:Fault")) return context.error;
  return endEnvelope(context);
}

int readToBody(::soap& context) {
  if (soap_begin_recv(&context) || soap_envelope_begin_in(&context) || soap_recv_header(&context) ||
      soap_body_begin_in(&context)) {
    return context.error;
  }
  return SOAP_OK;
}

int readRecord(::soap& context, const std::string& element, const Fields& fields) {
  ReceivedFields received;
  for (const Field& field : fields) received.push_back({&field});
  if (readMessage(context, element, received)) return context.error;
  for (const ReceivedField& each : received) {
    if (each.text && !readValue(context, each)) return context.error = SOAP_TYPE;
  }
  return hasRequiredNumbers(received) ? SOAP_OK : context.error = SOAP_OCCURS;
}

}  // namespace parlexo::protocol
