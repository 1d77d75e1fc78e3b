// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace parlexo::protocol {

/// Values of fields as the text that stands in XML. The process's locale has no say in it: a decimal comma
/// on the wire would be read as another number.

[[nodiscard]] std::string toText(std::int32_t value);
/// The shortest text that reads back as the same number.
[[nodiscard]] std::string toText(double value);
[[nodiscard]] std::string toText(bool value);

/// The value, or nothing when the text is not one of that type. Blanks around it don't matter.
[[nodiscard]] std::optional<std::int32_t> integerFromText(std::string_view text);
[[nodiscard]] std::optional<double> realFromText(std::string_view text);
/// "true" and "false", or "1" and "0".
[[nodiscard]] std::optional<bool> booleanFromText(std::string_view text);
/// Blanks anywhere are passed over; nothing when another character is no base64 or the length is wrong.
[[nodiscard]] std::optional<std::string> fromBase64(std::string_view text);

/// Whether `text` has bytes that no XML document may hold.
[[nodiscard]] bool hasForbiddenCharacters(std::string_view text);

/// `text` with "?" for every byte that no XML document may hold: the control characters but tab and the two
/// of line ends.
[[nodiscard]] std::string withoutForbiddenCharacters(std::string text);

}  // namespace parlexo::protocol
