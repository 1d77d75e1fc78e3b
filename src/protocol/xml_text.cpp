// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/xml_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>

namespace parlexo::protocol {

namespace {

/// Enough for any reference with some leading zeros. Bounds the search for the semicolon, which would
/// otherwise be slow in a text full of ampersands.
constexpr std::size_t maxReferenceLength = 16;

using NamedCharacter = std::pair<std::string_view, char32_t>;
constexpr std::array xmlEntities = {NamedCharacter{"amp", U'&'}, NamedCharacter{"lt", U'<'},
                                    NamedCharacter{"gt", U'>'}, NamedCharacter{"quot", U'"'},
                                    NamedCharacter{"apos", U'\''}};

/// HTML's entities for U+00A0 to U+00FF, in the order of their code points.
constexpr std::array<std::string_view, 96> latinEntities = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",
    "ordf",   "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",
    "acute",  "micro",  "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12",
    "frac34", "iquest", "Agrave", "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil",
    "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde",
    "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",   "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",
    "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",
    "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",
    "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide", "oslash", "ugrave",
    "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};

std::optional<char32_t> characterFromNumber(std::string_view digits, int base) {
  std::uint32_t number = 0;
  const char* const last = digits.data() + digits.size();
  const auto [end, error] = std::from_chars(digits.data(), last, number, base);
  if (digits.empty() || end != last) return std::nullopt;
  return error == std::errc() && number <= 0x10FFFF ? number : U'\uFFFD';
}

/// `name` is the part between "&" and ";". nullopt for an unknown name.
std::optional<char32_t> characterFromName(std::string_view name) {
  if (name.starts_with("#x") || name.starts_with("#X")) return characterFromNumber(name.substr(2), 16);
  if (name.starts_with('#')) return characterFromNumber(name.substr(1), 10);
  for (const auto& [entity, character] : xmlEntities)
    if (entity == name) return character;
  const auto* const latin = std::find(latinEntities.begin(), latinEntities.end(), name);
  if (latin == latinEntities.end()) return std::nullopt;
  return static_cast<char32_t>(0xA0 + (latin - latinEntities.begin()));
}

void appendUtf8(std::string& text, char32_t character) {
  const auto append = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  const auto appendContinuation = [&](int shift) { append(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) {
    append(character);
  } else if (character < 0x800) {
    append(0xC0 | character >> 6);
    appendContinuation(0);
  } else if (character < 0x10000) {
    append(0xE0 | character >> 12);
    for (const int shift : {6, 0}) appendContinuation(shift);
  } else {
    append(0xF0 | character >> 18);
    for (const int shift : {12, 6, 0}) appendContinuation(shift);
  }
}

/// Removes the reference at the start of `content` and appends its character to `text`.
void readReference(std::string_view& content, std::string& text) {
  const std::size_t end = content.substr(0, maxReferenceLength).find(';');
  const auto character =
      end == std::string_view::npos ? std::nullopt : characterFromName(content.substr(1, end - 1));
  if (character)
    appendUtf8(text, *character);
  else
    text.push_back('&');
  content.remove_prefix(character ? end + 1 : 1);
}

/// Removes the CDATA section, comment or processing instruction at the start of `content`, or just the "<" of
/// a tag, and appends its text to `text`.
void readMarkup(std::string_view& content, std::string& text) {
  struct Section {
    std::string_view begin;
    std::string_view end;
    bool isText;
  };
  constexpr std::array sections = {Section{"<![CDATA[", "]]>", true}, Section{"<!--", "-->", false},
                                   Section{"<?", "?>", false}};
  for (const Section& section : sections) {
    if (!content.starts_with(section.begin)) continue;
    content.remove_prefix(section.begin.size());
    const std::size_t length = std::min(content.find(section.end), content.size());
    if (section.isText) text += content.substr(0, length);
    content.remove_prefix(std::min(length + section.end.size(), content.size()));
    return;
  }
  text.push_back('<');
  content.remove_prefix(1);
}

}  // namespace

std::string decodeContent(std::string_view content) {
  std::string text;
  text.reserve(content.size());
  while (!content.empty()) {
    const std::size_t plain = std::min(content.find_first_of("<&"), content.size());
    text += content.substr(0, plain);
    content.remove_prefix(plain);
    if (content.starts_with('&'))
      readReference(content, text);
    else if (!content.empty())
      readMarkup(content, text);
  }
  return text;
}

}  // namespace parlexo::protocol
