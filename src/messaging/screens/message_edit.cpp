// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/message_edit.h"

#include <algorithm>
#include <functional>

#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// How much of `text` fits into `room` units without parting a surrogate pair.
QString beginningOf(const QString& text, int room) {
  qsizetype kept = std::clamp<qsizetype>(room, 0, text.size());
  if (kept > 0 && kept < text.size() && text.at(kept - 1).isHighSurrogate()) --kept;
  return text.left(kept);
}

// A zero character would end the text on its way to the gateway.
QString withoutZeros(QString text) {
  return text.remove(QChar(u'\0'));
}

bool entersText(const QKeyEvent& event) {
  const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const QString text = event.text();
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ||
         (!isCommand && !text.isEmpty() && text.at(0).isPrint());
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
  setPlainText(withoutZeros(text));
}

void MessageEdit::truncate(int units) {
  if (units < length()) removeJoined(units, length());
}

void MessageEdit::keyPressEvent(QKeyEvent* event) {
  // A key that finds no room is dropped before it gets into the text, or undo would collect steps that
  // change nothing.
  if (room() > 0 || !entersText(*event)) QPlainTextEdit::keyPressEvent(event);
}

// A file's address is no text that anybody wants to send; the page may know what to do with a dropped file.
bool MessageEdit::canInsertFromMimeData(const QMimeData* source) const {
  const QList<QUrl> urls = source->urls();
  const bool isFiles =
      !urls.isEmpty() && std::all_of(urls.begin(), urls.end(), std::mem_fn(&QUrl::isLocalFile));
  return !isFiles && QPlainTextEdit::canInsertFromMimeData(source);
}

void MessageEdit::insertFromMimeData(const QMimeData* source) {
  // Cut before it is inserted: laying out a text of megabytes only to drop it again would take seconds.
  QString pasted = withoutZeros(source->text());
  pasted.replace(u"\r\n"_s, u"\n"_s);
  // An edit block of its own, or undo would take away what was typed just before as well.
  QTextCursor cursor = textCursor();
  cursor.beginEditBlock();
  cursor.insertText(beginningOf(pasted, room()));
  cursor.endEditBlock();
  ensureCursorVisible();
}

int MessageEdit::room() const {
  const QTextCursor cursor = textCursor();
  return limit_ - length() + cursor.selectionEnd() - cursor.selectionStart();
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
