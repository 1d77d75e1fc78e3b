// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/unsendable_characters.h"

#include <algorithm>
#include <array>

#include <QSet>
#include <QTextBoundaryFinder>

#include "base/code_page.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// Abbreviations and names of ASCII (ISO 646); empty for tab, line feed and carriage return, which can be
// sent.
constexpr std::array<const char*, 32> controlNames = {
    "NUL (null)",
    "SOH (start of heading)",
    "STX (start of text)",
    "ETX (end of text)",
    "EOT (end of transmission)",
    "ENQ (enquiry)",
    "ACK (acknowledge)",
    "BEL (bell)",
    "BS (backspace)",
    "",
    "",
    "VT (vertical tab)",
    "FF (form feed)",
    "",
    "SO (shift out)",
    "SI (shift in)",
    "DLE (data link escape)",
    "DC1 (device control 1)",
    "DC2 (device control 2)",
    "DC3 (device control 3)",
    "DC4 (device control 4)",
    "NAK (negative acknowledge)",
    "SYN (synchronous idle)",
    "ETB (end of transmission block)",
    "CAN (cancel)",
    "EM (end of medium)",
    "SUB (substitute)",
    "ESC (escape)",
    "FS (file separator)",
    "GS (group separator)",
    "RS (record separator)",
    "US (unit separator)",
};

// The name of a control character that XML can't hold, in which the requests are written. Empty for any other
// text.
QLatin1String unsendableControl(QStringView character) {
  if (character.size() != 1 || character[0].unicode() >= controlNames.size()) return {};
  return QLatin1String(controlNames[character[0].unicode()]);
}

// The character itself, or its name or number where it would leave nothing to see.
QString readable(const QString& character) {
  if (const QLatin1String name = unsendableControl(character); !name.isEmpty()) return name;
  if (character == QChar(0x85)) return u"NEL (next line)"_s;
  const auto isSeen = [](char32_t point) { return QChar::isPrint(point) && !QChar::isSpace(point); };
  const auto points = character.toUcs4();
  if (std::any_of(points.begin(), points.end(), isSeen)) return character;
  return u"U+"_s + QString::number(points.front(), 16).toUpper().rightJustified(4, QChar(u'0'));
}

}  // namespace

QStringList unsendableCharacters(const QString& text) {
  QStringList found;
  QSet<QString> seen;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  qsizetype begin = 0;
  for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
    const QString character = text.mid(begin, end - begin);
    begin = end;
    const bool isSent = fitsCodePage(character) && unsendableControl(character).isEmpty();
    if (isSent || seen.contains(character)) continue;
    seen.insert(character);
    found.append(readable(character));
  }
  return found;
}

}  // namespace parlexo
