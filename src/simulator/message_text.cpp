// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/message_text.h"

#include <algorithm>
#include <optional>

#include "base/code_page.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView unicodePrefix = "%%UNICODE%%";

struct PartSizes {
  int single;
  int concatenated;
};
constexpr PartSizes standardSizes{160, 152};
constexpr PartSizes unicodeSizes{70, 67};

// The characters that the 7-bit alphabet of SMS reaches by an escape only. 0xA4 stands where the ISO
// character set of the network has the euro sign.
constexpr QByteArrayView escapedCharacters = "\x0C[\\]^{|}~\xA4";

bool isHexDigit(char character) {
  return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'F') ||
         (character >= 'a' && character <= 'f');
}

std::optional<QString> decodeUnicode(const QByteArray& raw) {
  constexpr qsizetype digitsPerUnit = 4;
  if (!raw.startsWith(unicodePrefix)) return std::nullopt;
  const QByteArray digits = raw.mid(unicodePrefix.size());
  if (digits.size() % digitsPerUnit != 0 || !std::all_of(digits.begin(), digits.end(), isHexDigit))
    return std::nullopt;
  QString text;
  text.reserve(digits.size() / digitsPerUnit);
  for (qsizetype i = 0; i < digits.size(); i += digitsPerUnit)
    text.append(QChar(digits.mid(i, digitsPerUnit).toUShort(nullptr, 16)));
  return text;
}

int countStandardUnits(const QByteArray& raw) {
  const auto escaped = std::count_if(raw.begin(), raw.end(),
                                     [](char character) { return escapedCharacters.contains(character); });
  return static_cast<int>(raw.size() + escaped);
}

int partsFor(int units, PartSizes sizes) {
  return units <= sizes.single ? 1 : (units + sizes.concatenated - 1) / sizes.concatenated;
}

}  // namespace

MessageText readMessageText(const QByteArray& raw) {
  if (const std::optional<QString> text = decodeUnicode(raw)) {
    const int units = static_cast<int>(text->size());
    return {*text, true, units, partsFor(units, unicodeSizes)};
  }
  const int units = countStandardUnits(raw);
  return {fromCodePage(raw), false, units, partsFor(units, standardSizes)};
}

QString forLog(const QString& text) {
  QString line;
  line.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar character = text[i];
    if (character == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') continue;
    if (character == u'\n')
      line += u'⏎';
    else if (character.category() == QChar::Other_Control)
      line += u"\\x%1"_s.arg(character.unicode(), 2, 16, QLatin1Char('0'));
    else
      line += character;
  }
  return line;
}

}  // namespace parlexo::simulator
