// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/field_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace parlexo::protocol {

namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

template <class Number>
std::optional<Number> numberFromText(std::string_view text) {
  // Unlike XML, from_chars rejects a leading plus sign.
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

/// The value of a base64 digit, or -1 if it is none.
int sextet(char digit) {
  if (digit >= 'A' && digit <= 'Z') return digit - 'A';
  if (digit >= 'a' && digit <= 'z') return digit - 'a' + 26;
  if (digit >= '0' && digit <= '9') return digit - '0' + 52;
  if (digit == '+') return 62;
  if (digit == '/') return 63;
  return -1;
}

bool isForbidden(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 && c != '\t' && c != '\n' && c != '\r';
}

}  // namespace

std::string toText(std::int32_t value) {
  return std::to_string(value);
}

std::string toText(double value) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-INF" : "INF";
  std::array<char, 32> text{};
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), end};
}

std::string toText(bool value) {
  return value ? "true" : "false";
}

std::optional<std::int32_t> integerFromText(std::string_view text) {
  return numberFromText<std::int32_t>(trimmed(text));
}

std::optional<double> realFromText(std::string_view text) {
  const std::string_view word = trimmed(text);
  if (word == "NaN") return std::numeric_limits<double>::quiet_NaN();
  if (word == "INF") return std::numeric_limits<double>::infinity();
  if (word == "-INF") return -std::numeric_limits<double>::infinity();
  // from_chars accepts other spellings of these words, XML does not.
  if (word.find_first_not_of("0123456789+-.eE") != std::string_view::npos) return std::nullopt;
  return numberFromText<double>(word);
}

std::optional<bool> booleanFromText(std::string_view text) {
  const std::string_view word = trimmed(text);
  if (word == "true" || word == "1") return true;
  if (word == "false" || word == "0") return false;
  return std::nullopt;
}

std::optional<std::string> fromBase64(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size() / 4 * 3);
  std::uint32_t bits = 0;
  int digits = 0;
  int padding = 0;
  for (const char c : text) {
    if (blanks.find(c) != std::string_view::npos) continue;
    const int value = sextet(c);
    if (c == '=' ? ++padding > 2 : value < 0 || padding > 0) return std::nullopt;
    bits = bits << 6 | static_cast<std::uint32_t>(c == '=' ? 0 : value);
    if (++digits % 4 != 0) continue;
    for (const int shift : {16, 8, 0}) bytes.push_back(static_cast<char>(bits >> shift & 0xFF));
  }
  if (digits % 4 != 0) return std::nullopt;
  bytes.resize(bytes.size() - static_cast<std::size_t>(padding));
  return bytes;
}

bool hasForbiddenCharacters(std::string_view text) {
  return std::any_of(text.begin(), text.end(), isForbidden);
}

std::string withoutForbiddenCharacters(std::string text) {
  std::replace_if(text.begin(), text.end(), isForbidden, '?');
  return text;
}

}  // namespace parlexo::protocol
