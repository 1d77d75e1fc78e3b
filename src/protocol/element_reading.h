// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <stdsoap2.h>

namespace parlexo::protocol {

/// Reads XML elements with the runtime. All values are read as text and converted later, so that references
/// work alike for all types. The functions return the runtime's result, 0 on success.

/// The runtime's type number for text.
inline constexpr int textType = 1;

/// The runtime counts end tags but, in its default mode, does not compare their names. Call after reading the
/// element `name` to its end, while the context still holds the name of the end tag.
[[nodiscard]] inline int checkEndTag(::soap& context, const std::string& name) {
  return context.tag == name ? SOAP_OK : context.error = SOAP_SYNTAX_ERROR;
}

/// Whether strings are read as Unicode, as in responses, rather than as bytes, as in requests.
[[nodiscard]] inline bool readsUnicode(const ::soap& context) {
  return (context.imode & SOAP_C_UTFSTRING) != 0;
}

/// Reads the current element, which must be `tag` unless that is null, as text; Unicode strings still have to
/// be decoded with decodeContent(). Sets `*text` to null for a nil element. For a reference, the runtime sets
/// `*text` when it reaches the referenced element, at the latest at the end of the message.
[[nodiscard]] inline int readText(::soap& context, const char* tag, char** text) {
  const std::string name = context.tag;
  const int form = readsUnicode(context) ? 0 : 1;  // the runtime's numbers for raw content and decoded text
  if (!soap_instring(&context, tag, text, "", textType, form, 0, -1, nullptr)) return context.error;
  return checkEndTag(context, name);
}

/// Skips the current element with all its content.
[[nodiscard]] inline int skipElement(::soap& context) {
  const std::string name = context.tag;
  if (soap_element_begin_in(&context, nullptr, 1, nullptr)) return context.error;
  if (!context.body) return SOAP_OK;
  return soap_element_end_in(&context, nullptr) ? context.error : checkEndTag(context, name);
}

/// Calls `readChild` for every element up to the end of the enclosing one.
template <class ReadChild>
[[nodiscard]] int readSiblings(::soap& context, ReadChild readChild) {
  while (soap_peek_element(&context) == SOAP_OK) {
    if (readChild()) return context.error;
  }
  if (context.error != SOAP_NO_TAG) return context.error;
  return context.error = SOAP_OK;
}

/// Reads the element `tag`, calling `readChild` for each of its children.
template <class ReadChild>
[[nodiscard]] int readElement(::soap& context, const char* tag, ReadChild readChild) {
  if (soap_element_begin_in(&context, tag, 0, nullptr)) return context.error;
  if (!context.body) return SOAP_OK;
  const std::string name = context.tag;
  if (readSiblings(context, readChild)) return context.error;
  return soap_element_end_in(&context, tag) ? context.error : checkEndTag(context, name);
}

}  // namespace parlexo::protocol
