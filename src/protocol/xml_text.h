// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace parlexo::protocol {

/// Decodes the raw content of an XML element, in UTF-8, to text. Replaces character references, XML's five
/// entities and HTML's entities for U+00A0 to U+00FF; unwraps CDATA sections; removes comments and processing
/// instructions. Unknown entities, lone ampersands and nested elements are left unchanged. Surrogates are
/// encoded in three bytes, so that fromWire() can join a pair; a number that is not a code point becomes
/// U+FFFD. The runtime's own decoder reads at most six characters of a reference (of "&#128512;" it leaves
/// the semicolon) and decodes "&eacute;" as the capital letter.
[[nodiscard]] std::string decodeContent(std::string_view content);

}  // namespace parlexo::protocol
