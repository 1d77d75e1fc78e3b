// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "protocol/fields.h"

struct soap;

namespace parlexo::protocol {

/// The element that carries a record: its qualified name.
[[nodiscard]] std::string requestElement(std::string_view operation);
[[nodiscard]] std::string responseElement(std::string_view operation);

/// Marks what comes next on `context` as section-5 encoded, for reading and writing.
void setEncodingStyle(::soap& context);

/// Writes an envelope whose body holds one element with the given fields as its children. Returns the
/// runtime's result. Characters that XML cannot carry become "?".
[[nodiscard]] int writeEnvelope(::soap& context, const std::string& element, const Fields& fields);

/// The same for a fault.
[[nodiscard]] int writeFaultEnvelope(::soap& context, const std::string& code, const std::string& text,
                                     const std::string& detail);

/// Reads up to the first element of the body, past any header. Returns the runtime's result.
[[nodiscard]] int readToBody(::soap& context);

/// From the body's first element on: reads that element, which must be the given one, and all up to the end
/// of the message. Fields may come in any order and as references to elements behind the first; unknown ones
/// are passed over and the first of two counts. A record with a code or a version must have it; where
/// the code is 0 its other numbers must not be absent either. Returns the runtime's result; the record is
/// whole only when that is 0.
[[nodiscard]] int readRecord(::soap& context, const std::string& element, const Fields& fields);

}  // namespace parlexo::protocol
