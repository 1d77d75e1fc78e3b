// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "protocol/fields.h"

struct soap;

namespace parlexo::protocol {

/// The qualified names of the elements that carry an operation's records.
[[nodiscard]] std::string requestElement(std::string_view operation);
[[nodiscard]] std::string responseElement(std::string_view operation);

/// Selects section-5 encoding for everything that is subsequently read or written on `context`.
void setEncodingStyle(::soap& context);

/// Writes an envelope whose body is one element with `fields` as its children. Characters that XML forbids
/// become "?". Returns the runtime's result, 0 on success.
[[nodiscard]] int writeEnvelope(::soap& context, const std::string& element, const Fields& fields);

/// Writes an envelope with a fault; see faultEnvelope().
[[nodiscard]] int writeFaultEnvelope(::soap& context, const std::string& code, const std::string& text,
                                     const std::string& detail);

/// Reads up to the first element of the body, skipping any header. Returns the runtime's result.
[[nodiscard]] int readToBody(::soap& context);

/// Reads from the body's first element, which must be `element`, to the end of the message. Fields may come
/// in any order, and as references to elements after the first. Unknown fields are skipped; the first of two
/// fields with the same name is used. The message is malformed if an integer is missing or, with code 0, any
/// other number. Returns the runtime's result; on error some fields may have been assigned.
[[nodiscard]] int readRecord(::soap& context, const std::string& element, const Fields& fields);

}  // namespace parlexo::protocol
