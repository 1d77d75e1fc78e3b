// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/client/wire_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

#include "base/code_page.h"

namespace parlexo {

namespace {

/// Reads one character, or one byte that does not fit UTF-8. QString's own decoder refuses surrogates before
/// they could be joined.
char32_t readCharacter(const char*& at) {
  // By the number of bytes that follow the first. A smaller one in as many bytes would bring in a U+0000.
  constexpr std::array<char32_t, 4> smallest = {0, 0x80, 0x800, 0x10000};
  const auto lead = static_cast<unsigned char>(*at++);
  const auto following = static_cast<std::size_t>(std::max(std::countl_one(lead) - 1, 0));
  if (following == 0 || following >= smallest.size()) return lead;
  char32_t character = lead & (0x3Fu >> following);
  for (std::size_t i = 0; i < following; ++i) {
    if ((at[i] & 0xC0) != 0x80) return lead;
    character = character << 6 | (at[i] & 0x3Fu);
  }
  if (character < smallest[following]) return lead;
  at += following;
  return character;
}

void append(QString& text, char32_t character) {
  if (character >= 0x80 && character < 0xA0) {
    const char byte = static_cast<char>(character);
    text += fromCodePage(QByteArrayView(&byte, 1));
  } else if (character > QChar::LastValidCodePoint || QChar::isNonCharacter(character)) {
    text += QChar(QChar::ReplacementCharacter);
  } else {
    text += QChar::fromUcs4(character);
  }
}

}  // namespace

std::string toWire(const QString& text) {
  return toCodePage(text).toStdString();
}

QString fromWire(const char* text) {
  QString read;
  while (text && *text) append(read, readCharacter(text));
  // A surrogate that is still alone would be lost, or refused, wherever the text is stored.
  return read.isValidUtf16() ? read : QString::fromUcs4(read.toStdU32String().c_str());
}

}  // namespace parlexo
