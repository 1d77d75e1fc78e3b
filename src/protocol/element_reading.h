// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <stdsoap2.h>

namespace parlexo::protocol {

/// How the protocol reads XML with the runtime: values arrive as text, the one type that the runtime reads
/// for us, and are converted afterwards, so that references work alike for all of them. Each function returns
/// the runtime's result, 0 for success.

/// The number under which the runtime knows text.
inline constexpr int textType = 1;

/// The runtime counts end tags but, in its default mode, does not look at their names. `name` is the element
/// that has just been read to its end; the context still holds the name in its end tag.
[[nodiscard]] inline int checkEndTag(::soap& context, const std::string& name) {
  return context.tag == name ? SOAP_OK : context.error = SOAP_SYNTAX_ERROR;
}

/// Whether strings are read as Unicode: a reply's are, a request's are bytes.
[[nodiscard]] inline bool readsUnicode(const ::soap& context) {
  return (context.imode & SOAP_C_UTFSTRING) != 0;
}

/// Reads the element at hand, which must be `tag` unless that is null, as text; where strings are Unicode, as
/// content that textOfContent() has to decode. An element that is nil gives null; one that is a reference is
/// filled in when the runtime meets what it points to, at the latest at the message's end.
[[nodiscard]] inline int readText(::soap& context, const char* tag, char** text) {
  const std::string name = context.tag;
  const int form = readsUnicode(context) ? 0 : 1;  // the runtime's numbers for content as sent, and for text
  if (!soap_instring(&context, tag, text, "", textType, form, 0, -1, nullptr)) return context.error;
  return checkEndTag(context, name);
}

/// Passes over the element at hand and all that is in it.
[[nodiscard]] inline int skipElement(::soap& context) {
  const std::string name = context.tag;
  if (soap_element_begin_in(&context, nullptr, 1, nullptr)) return context.error;
  if (!context.body) return SOAP_OK;
  return soap_element_end_in(&context, nullptr) ? context.error : checkEndTag(context, name);
}

/// Lets `readChild` read every element up to the end of the one around them.
template <class ReadChild>
[[nodiscard]] int readSiblings(::soap& context, ReadChild readChild) {
  while (soap_peek_element(&context) == SOAP_OK) {
    if (readChild()) return context.error;
  }
  if (context.error != SOAP_NO_TAG) return context.error;
  return context.error = SOAP_OK;
}

/// Reads the element `tag` and lets `readChild` read each of its children.
template <class ReadChild>
[[nodiscard]] int readElement(::soap& context, const char* tag, ReadChild readChild) {
  if (soap_element_begin_in(&context, tag, 0, nullptr)) return context.error;
  if (!context.body) return SOAP_OK;
  const std::string name = context.tag;
  if (readSiblings(context, readChild)) return context.error;
  return soap_element_end_in(&context, tag) ? context.error : checkEndTag(context, name);
}

}  // namespace parlexo::protocol
