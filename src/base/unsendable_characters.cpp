#include "base/unsendable_characters.h"

#include <algorithm>

#include <QSet>
#include <QTextBoundaryFinder>

#include "base/code_page.h"

namespace parlexo {
namespace {

// The character itself, or its number where it would leave nothing to see.
QString readable(const QString& character) {
  const auto isSeen = [](char32_t point) { return QChar::isPrint(point) && !QChar::isSpace(point); };
  const auto points = character.toUcs4();
  if (std::any_of(points.begin(), points.end(), isSeen)) return character;
  return QStringLiteral("U+") + QString::number(points.front(), 16).toUpper().rightJustified(4, QChar(u'0'));
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
    if (fitsCodePage(character) || seen.contains(character)) continue;
    seen.insert(character);
    found.append(readable(character));
  }
  return found;
}

}  // namespace parlexo
