// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <QString>

namespace parlexo {

/// Text as the fields of a request carry it: bytes of the code page, "?" for a character that it lacks.
[[nodiscard]] std::string toWire(const QString& text);

/// The text of a response's field, which the runtime hands out as UTF-8; null, a field that was absent, gives
/// an empty text. The gateway may repeat text that a client sent it as bytes, so U+0080 to U+009F are read as
/// bytes of the code page. A pair of surrogates that arrives as two character references is joined; what is
/// no Unicode character becomes U+FFFD.
[[nodiscard]] QString fromWire(const char* text);

}  // namespace parlexo
