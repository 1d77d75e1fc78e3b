#include "messaging/screens/message_edit.h"

#include <algorithm>

#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>

namespace parlexo {
namespace {

// How much of `text` fits into `room` units without parting a surrogate pair.
QString beginningOf(const QString& text, int room) {
  qsizetype kept = std::clamp<qsizetype>(room, 0, text.size());
  if (kept > 0 && kept < text.size() && text.at(kept - 1).isHighSurrogate()) --kept;
  return text.left(kept);
}

}  // namespace

MessageEdit::MessageEdit(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  connect(document(), &QTextDocument::contentsChange, this, &MessageEdit::noteChange);
  connect(this, &QPlainTextEdit::textChanged, this, &MessageEdit::enforceLimit);
}

QString MessageEdit::text() const {
  QString raw = document()->toRawText();
  for (const QChar separator : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
    raw.replace(separator, QChar(u'\n'));
  return raw;
}

int MessageEdit::length() const {
  return document()->characterCount() - 1;  // the document counts the end of its last block
}

void MessageEdit::setText(const QString& text) {
  const QScopedValueRollback own(isProgramsOwn_, true);
  setPlainText(text);
}

void MessageEdit::truncate(int units) {
  if (units < length()) removeJoined(units, length());
}

void MessageEdit::insertFromMimeData(const QMimeData* source) {
  // Cut before it is inserted: laying out a text of megabytes only to drop it again would take seconds.
  QString pasted = source->text();
  pasted.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  const QTextCursor cursor = textCursor();
  const int selected = cursor.selectionEnd() - cursor.selectionStart();
  textCursor().insertText(beginningOf(pasted, limit_ - length() + selected));
  ensureCursorVisible();
}

void MessageEdit::noteChange(int position, int /*removed*/, int added) {
  insertionEnd_ = position + added;
}

void MessageEdit::enforceLimit() {
  const int excess = length() - limit_;
  if (isProgramsOwn_ || excess <= 0) return;
  const int end = std::clamp(insertionEnd_, excess, length());
  const bool partsPair = document()->characterAt(end - excess).isLowSurrogate();
  removeJoined(end - excess - (partsPair ? 1 : 0), end);
}

void MessageEdit::removeJoined(int from, int to) {
  const QScopedValueRollback own(isProgramsOwn_, true);
  QTextCursor cursor(document());
  cursor.joinPreviousEditBlock();
  cursor.setPosition(from);
  cursor.setPosition(to, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  cursor.endEditBlock();
}

}  // namespace parlexo
