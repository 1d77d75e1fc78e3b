#include "gateway/core/wire_text.h"

#include <bit>

#include "base/code_page.h"

namespace parlexo {

namespace {

/// Reads one character, or one byte that does not fit UTF-8. QString's own decoder refuses surrogates before
/// they could be joined.
char32_t readCharacter(const char*& at) {
  const auto lead = static_cast<unsigned char>(*at++);
  if (lead < 0xC0) return lead;
  const int following = std::countl_one(lead) - 1;
  char32_t character = lead & (0x3Fu >> following);
  for (int i = 0; i < following; ++i) {
    if ((at[i] & 0xC0) != 0x80) return lead;
    character = character << 6 | (at[i] & 0x3Fu);
  }
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
