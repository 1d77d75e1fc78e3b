// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace parlexo::protocol {

/// Conversion of field values to and from their XML text, independent of the locale: a decimal comma on the
/// wire would be misread.

[[nodiscard]] std::string toText(std::int32_t value);
/// The shortest text that converts back to the same number.
[[nodiscard]] std::string toText(double value);
[[nodiscard]] std::string toText(bool value);

/// Leading and trailing blanks are ignored. nullopt if the text is not a value of that type.
[[nodiscard]] std::optional<std::int32_t> integerFromText(std::string_view text);
[[nodiscard]] std::optional<double> realFromText(std::string_view text);
/// Accepts "true", "false", "1" and "0".
[[nodiscard]] std::optional<bool> booleanFromText(std::string_view text);
/// Blanks anywhere are ignored. nullopt if another character is not base64 or the length is wrong.
[[nodiscard]] std::optional<std::string> fromBase64(std::string_view text);

/// Whether `text` contains bytes that XML forbids.
[[nodiscard]] bool hasForbiddenCharacters(std::string_view text);

/// Replaces every byte that XML forbids, a control character except tab, LF and CR, by "?".
[[nodiscard]] std::string withoutForbiddenCharacters(std::string text);

}  // namespace parlexo::protocol
