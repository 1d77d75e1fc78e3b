// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/unsendable_hint.h"

#include <algorithm>

#include <QLineEdit>

#include "base/unsendable_characters.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// As many as a narrow page has room for; the rest is an ellipsis.
constexpr int mostCharactersShown = 8;

QString hintOf(QStringList characters) {
  if (characters.isEmpty()) return {};
  const bool isCut = characters.size() > mostCharactersShown;
  characters = characters.mid(0, mostCharactersShown);
  if (isCut) characters.append(QString(QChar(u'\u2026')));
  return u"Will be sent as \"?\":  "_s + characters.join(u"  "_s);
}

bool isPassword(const QLineEdit* field) {
  return field->echoMode() != QLineEdit::Normal;
}

}  // namespace

UnsendableHint::UnsendableHint(QWidget* parent) : QLabel(parent) {
  setObjectName(u"unsendableCharacters"_s);
  setTextFormat(Qt::PlainText);
  // A long list is cut off; it must not widen the window.
  setMinimumSize(1, fontMetrics().lineSpacing());
}

void UnsendableHint::follow(const QString& text) {
  showHint(unsendableCharacters(text));
}

void UnsendableHint::watch(const QList<QLineEdit*>& fields) {
  for (QLineEdit* field : fields)
    connect(field, &QLineEdit::textChanged, this, [this, fields] { tellOf(fields); });
  tellOf(fields);
}

void UnsendableHint::tellOf(const QList<QLineEdit*>& fields) {
  QString readable;
  for (const QLineEdit* field : fields)
    if (!isPassword(field)) readable += field->text();
  QStringList characters = unsendableCharacters(readable);
  if (std::any_of(fields.begin(), fields.end(), [](const QLineEdit* field) {
        return isPassword(field) && !unsendableCharacters(field->text()).isEmpty();
      }))
    characters.prepend(u"characters of the password"_s);
  showHint(characters);
}

void UnsendableHint::showHint(const QStringList& characters) {
  setText(hintOf(characters));
  setToolTip(text());
}

}  // namespace parlexo
