// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/client/wire_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

#include "base/code_page.h"

namespace parlexo {

namespace {

/// Reads one character and advances `at`. A byte that is not part of valid UTF-8 counts as one character.
/// QString's own decoder can't be used, because it rejects surrogates before they could be joined.
char32_t readCharacter(const char*& at) {
  // The smallest code point for each number of continuation bytes. Overlong forms could encode U+0000.
  constexpr std::array<char32_t, 4> smallest = {0, 0x80, 0x800, 0x10000};
  const auto lead = static_cast<unsigned char>(*at++);
  const auto continuations = static_cast<std::size_t>(std::max(std::countl_one(lead) - 1, 0));
  if (continuations == 0 || continuations >= smallest.size()) return lead;
  char32_t character = lead & (0x3Fu >> continuations);
  for (std::size_t i = 0; i < continuations; ++i) {
    if ((at[i] & 0xC0) != 0x80) return lead;
    character = character << 6 | (at[i] & 0x3Fu);
  }
  if (character < smallest[continuations]) return lead;
  at += continuations;
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
  QString decoded;
  while (text && *text) append(decoded, readCharacter(text));
  // A lone surrogate would be lost or rejected wherever the text is stored.
  return decoded.isValidUtf16() ? decoded : QString::fromUcs4(decoded.toStdU32String().c_str());
}

}  // namespace parlexo
