// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/unsendable_hint.h"

#include <algorithm>
#include <array>

#include <QLineEdit>
#include <QSet>
#include <QTextBoundaryFinder>

#include "base/code_page.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// ASCII control characters (ISO 646), by code. Empty for tab, line feed and carriage return, which can be
// sent.
constexpr std::array<const char*, 32> controlNames = {
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "NUL (null)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "SOH (start of heading)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "STX (start of text)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "ETX (end of text)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "EOT (end of transmission)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "ENQ (enquiry)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "ACK (acknowledge)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "BEL (bell)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "BS (backspace)"),
    "",
    "",
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "VT (vertical tab)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "FF (form feed)"),
    "",
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "SO (shift out)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "SI (shift in)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "DLE (data link escape)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "DC1 (device control 1)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "DC2 (device control 2)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "DC3 (device control 3)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "DC4 (device control 4)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "NAK (negative acknowledge)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "SYN (synchronous idle)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "ETB (end of transmission block)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "CAN (cancel)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "EM (end of medium)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "SUB (substitute)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "ESC (escape)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "FS (file separator)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "GS (group separator)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "RS (record separator)"),
    QT_TRANSLATE_NOOP("parlexo::UnsendableHint", "US (unit separator)"),
};

// Requests are XML, which can't contain these control characters.
bool isForbiddenInXml(QStringView character) {
  if (character.size() != 1 || character[0].unicode() >= controlNames.size()) return false;
  return *controlNames[character[0].unicode()] != '\0';
}

// The character itself, or the name or number of an invisible one.
QString toReadable(const QString& character) {
  if (isForbiddenInXml(character)) return UnsendableHint::tr(controlNames[character[0].unicode()]);
  if (character == QChar(0x85)) return UnsendableHint::tr("NEL (next line)");
  const auto isVisible = [](char32_t point) { return QChar::isPrint(point) && !QChar::isSpace(point); };
  const auto points = character.toUcs4();
  if (std::any_of(points.begin(), points.end(), isVisible)) return character;
  return u"U+"_s + QString::number(points.front(), 16).toUpper().rightJustified(4, QChar(u'0'));
}

// Fits on a narrow page. Further characters are replaced by an ellipsis.
constexpr int maxCharacters = 8;

QString hintText(QStringList characters) {
  if (characters.isEmpty()) return {};
  const bool isCut = characters.size() > maxCharacters;
  characters = characters.mid(0, maxCharacters);
  if (isCut) characters.append(QString(QChar(u'\u2026')));
  return UnsendableHint::tr("Will be sent as \"?\":  %1").arg(characters.join(u"  "_s));
}

bool isPassword(const QLineEdit* field) {
  return field->echoMode() != QLineEdit::Normal;
}

}  // namespace

QStringList unsendableCharacters(const QString& text) {
  QStringList characters;
  QSet<QString> seen;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  qsizetype begin = 0;
  for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
    const QString character = text.mid(begin, end - begin);
    begin = end;
    const bool isSent = fitsCodePage(character) && !isForbiddenInXml(character);
    if (isSent || seen.contains(character)) continue;
    seen.insert(character);
    characters.append(toReadable(character));
  }
  return characters;
}

UnsendableHint::UnsendableHint(QWidget* parent) : QLabel(parent) {
  setObjectName(u"unsendableCharacters"_s);
  setTextFormat(Qt::PlainText);
  // A long list is cut off instead of widening the window.
  setMinimumSize(1, fontMetrics().lineSpacing());
}

void UnsendableHint::check(const QString& text) {
  showHint(unsendableCharacters(text));
}

void UnsendableHint::watch(const QList<QLineEdit*>& fields) {
  for (QLineEdit* field : fields)
    connect(field, &QLineEdit::textChanged, this, [this, fields] { checkFields(fields); });
  checkFields(fields);
}

void UnsendableHint::checkFields(const QList<QLineEdit*>& fields) {
  QString visibleText;
  for (const QLineEdit* field : fields)
    if (!isPassword(field)) visibleText += field->text();
  QStringList characters = unsendableCharacters(visibleText);
  if (std::any_of(fields.begin(), fields.end(), [](const QLineEdit* field) {
        return isPassword(field) && !unsendableCharacters(field->text()).isEmpty();
      }))
    characters.prepend(tr("characters of the password"));
  showHint(characters);
}

void UnsendableHint::showHint(const QStringList& characters) {
  setText(hintText(characters));
  setToolTip(text());
}

}  // namespace parlexo
