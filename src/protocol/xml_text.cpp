// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/xml_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <system_error>

namespace parlexo::protocol {

namespace {

/// More than any reference needs, with some leading zeros; a search without an end would make a text full of
/// ampersands slow.
constexpr std::size_t longestReference = 16;

struct NamedCharacter {
  std::string_view name;
  char32_t character;
};

constexpr std::array xmlEntities = {NamedCharacter{"amp", U'&'}, NamedCharacter{"lt", U'<'},
                                    NamedCharacter{"gt", U'>'}, NamedCharacter{"quot", U'"'},
                                    NamedCharacter{"apos", U'\''}};

/// HTML's names for U+00A0 to U+00FF, in the order of their numbers.
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

std::optional<char32_t> characterNumbered(std::string_view digits, int base) {
  std::uint32_t number = 0;
  const char* const last = digits.data() + digits.size();
  const auto [end, error] = std::from_chars(digits.data(), last, number, base);
  if (digits.empty() || end != last) return std::nullopt;
  return error == std::errc() && number <= 0x10FFFF ? number : U'\uFFFD';
}

/// `name` is the part between "&" and ";".
std::optional<char32_t> characterNamed(std::string_view name) {
  if (name.starts_with("#x") || name.starts_with("#X")) return characterNumbered(name.substr(2), 16);
  if (name.starts_with('#')) return characterNumbered(name.substr(1), 10);
  for (const NamedCharacter& each : xmlEntities)
    if (each.name == name) return each.character;
  const auto* const latin = std::find(latinEntities.begin(), latinEntities.end(), name);
  if (latin == latinEntities.end()) return std::nullopt;
  return static_cast<char32_t>(0xA0 + (latin - latinEntities.begin()));
}

void appendUtf8(std::string& text, char32_t character) {
  const auto append = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  const auto following = [&](int shift) { append(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) {
    append(character);
  } else if (character < 0x800) {
    append(0xC0 | character >> 6);
    following(0);
  } else if (character < 0x10000) {
    append(0xE0 | character >> 12);
    for (const int shift : {6, 0}) following(shift);
  } else {
    append(0xF0 | character >> 18);
    for (const int shift : {12, 6, 0}) following(shift);
  }
}

/// Takes the reference off the front of `content`.
void readReference(std::string_view& content, std::string& text) {
  const std::size_t end = content.substr(0, longestReference).find(';');
  const auto character =
      end == std::string_view::npos ? std::nullopt : characterNamed(content.substr(1, end - 1));
  if (character)
    appendUtf8(text, *character);
  else
    text.push_back('&');
  content.remove_prefix(character ? end + 1 : 1);
}

/// Takes the section, or else the "<" of a tag, off the front of `content`.
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

std::string textOfContent(std::string_view content) {
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
