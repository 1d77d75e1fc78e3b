// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <QString>

namespace parlexo {

/// Encodes `text` for the fields of a request, in the code page. Characters that it lacks become "?".
[[nodiscard]] std::string toWire(const QString& text);

/// Decodes the text of a response field, which is UTF-8; empty for null, a missing field. Because the gateway
/// may echo text that a client sent as bytes, U+0080 to U+009F are decoded as bytes of the code page. A
/// surrogate pair that was sent as two character references is joined. Anything that is not a Unicode
/// character becomes U+FFFD.
[[nodiscard]] QString fromWire(const char* text);

}  // namespace parlexo
