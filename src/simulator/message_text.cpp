// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/message_text.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/code_page.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView unicodePrefix = "%%UNICODE%%";

// Units in a single SMS and in each part of a concatenated one.
using PartSizes = std::pair<int, int>;
constexpr PartSizes standardSizes{160, 152};
constexpr PartSizes unicodeSizes{70, 67};

// Characters that need an escape in the 7-bit alphabet of SMS. 0xA4 is the euro sign in ISO 8859-15.
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

int countParts(int units, PartSizes sizes) {
  const auto& [single, concatenated] = sizes;
  return units <= single ? 1 : (units + concatenated - 1) / concatenated;
}

}  // namespace

MessageText parseMessageText(const QByteArray& raw) {
  if (const std::optional<QString> text = decodeUnicode(raw)) {
    const int units = static_cast<int>(text->size());
    return {*text, true, units, countParts(units, unicodeSizes)};
  }
  const int units = countStandardUnits(raw);
  return {fromCodePage(raw), false, units, countParts(units, standardSizes)};
}

QString escapeForLog(const QString& text) {
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
