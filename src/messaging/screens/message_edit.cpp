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

// The beginning of `text`, at most `units` long, without splitting a surrogate pair.
QString truncated(const QString& text, int units) {
  qsizetype end = std::clamp<qsizetype>(units, 0, text.size());
  if (end > 0 && end < text.size() && text.at(end - 1).isHighSurrogate()) --end;
  return text.left(end);
}

QString withoutNulls(QString text) {
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
  connect(document(), &QTextDocument::contentsChange, this, &MessageEdit::recordInsertion);
  connect(this, &QPlainTextEdit::textChanged, this, &MessageEdit::enforceLimit);
}

QString MessageEdit::text() const {
  QString raw = document()->toRawText();
  for (const QChar separator : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
    raw.replace(separator, QChar(u'\n'));
  return raw;
}

int MessageEdit::length() const {
  return document()->characterCount() - 1;  // includes the end of the last block
}

void MessageEdit::setText(const QString& text) {
  const QScopedValueRollback guard(isProgramEdit_, true);
  setPlainText(withoutNulls(text));
}

void MessageEdit::truncate(int units) {
  if (units < length()) removeJoined(units, length());
}

void MessageEdit::keyPressEvent(QKeyEvent* event) {
  // At the limit, keys are dropped before they change the text. Otherwise the undo history would contain
  // steps without effect.
  if (remainingUnits() > 0 || !entersText(*event)) QPlainTextEdit::keyPressEvent(event);
}

// Leaves dropped files to the page, rather than inserting their URLs.
bool MessageEdit::canInsertFromMimeData(const QMimeData* source) const {
  const QList<QUrl> urls = source->urls();
  const bool isFiles =
      !urls.isEmpty() && std::all_of(urls.begin(), urls.end(), std::mem_fn(&QUrl::isLocalFile));
  return !isFiles && QPlainTextEdit::canInsertFromMimeData(source);
}

void MessageEdit::insertFromMimeData(const QMimeData* source) {
  // Truncated before insertion, because laying out megabytes of text takes seconds.
  QString pasted = withoutNulls(source->text());
  pasted.replace(u"\r\n"_s, u"\n"_s);
  // In a separate edit block. Otherwise undo would also remove the text typed just before.
  QTextCursor cursor = textCursor();
  cursor.beginEditBlock();
  cursor.insertText(truncated(pasted, remainingUnits()));
  cursor.endEditBlock();
  ensureCursorVisible();
}

int MessageEdit::remainingUnits() const {
  const QTextCursor cursor = textCursor();
  return limit_ - length() + cursor.selectionEnd() - cursor.selectionStart();
}

void MessageEdit::recordInsertion(int position, int /*removed*/, int added) {
  insertionEnd_ = position + added;
}

void MessageEdit::enforceLimit() {
  const int excess = length() - limit_;
  if (isProgramEdit_ || excess <= 0) return;
  const int end = std::clamp(insertionEnd_, excess, length());
  const bool splitsPair = document()->characterAt(end - excess).isLowSurrogate();
  removeJoined(end - excess - (splitsPair ? 1 : 0), end);
}

void MessageEdit::removeJoined(int from, int to) {
  const QScopedValueRollback guard(isProgramEdit_, true);
  QTextCursor cursor(document());
  cursor.joinPreviousEditBlock();
  cursor.setPosition(from);
  cursor.setPosition(to, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  cursor.endEditBlock();
}

}  // namespace parlexo
