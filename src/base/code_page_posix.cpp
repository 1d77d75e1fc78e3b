// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>

#include "base/code_page.h"

namespace parlexo {

namespace {

// Code points of the bytes 0x80 to 0x9F in windows-1252; every other byte equals its code point. Source: the
// Unicode Consortium's mapping table CP1252, with Microsoft's best fit for the undefined bytes.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t firstMapped = 0x80;
constexpr char32_t lastMapped = 0x9F;

// Returns -1 if the code page lacks `character`.
int toByte(char32_t character) {
  if (character < firstMapped || (character > lastMapped && character <= 0xFF))
    return static_cast<int>(character);
  const auto position = std::find(upperControls.begin(), upperControls.end(), character);
  if (position == upperControls.end()) return -1;
  return static_cast<int>(firstMapped) + static_cast<int>(position - upperControls.begin());
}

}  // namespace

QByteArray toCodePage(QStringView text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    char32_t character = text[i].unicode();
    if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      character = QChar::surrogateToUcs4(text[i], text[i + 1]);
      ++i;
    }
    const int byte = toByte(character);
    bytes.append(byte < 0 ? '?' : static_cast<char>(byte));
  }
  return bytes;
}

QString fromCodePage(QByteArrayView bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
    const auto number = static_cast<unsigned char>(byte);
    return number >= firstMapped && number <= lastMapped ? QChar(upperControls[number - firstMapped])
                                                         : QChar(number);
  });
  return text;
}

bool fitsCodePage(QStringView text) {
  return std::all_of(text.begin(), text.end(),
                     [](QChar character) { return toByte(character.unicode()) >= 0; });
}

}  // namespace parlexo
