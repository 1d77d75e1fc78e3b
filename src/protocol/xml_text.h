// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace parlexo::protocol {

/// The text of an element whose content, in UTF-8, is `content` as it was sent: character references, XML's
/// five entities and HTML's names for U+00A0 to U+00FF are replaced, CDATA sections are unwrapped, comments
/// and processing instructions left out. Other names, a lone ampersand and elements inside stay as they are
/// written. The runtime does this itself, but reads six characters of a reference at most ("&#128512;" leaves
/// a semicolon behind) and takes "&eacute;" for its capital letter. A surrogate is written in three bytes, so
/// that fromWire() can join a pair; a number that Unicode does not have becomes U+FFFD.
[[nodiscard]] std::string textOfContent(std::string_view content);

}  // namespace parlexo::protocol
