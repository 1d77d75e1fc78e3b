// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

namespace parlexo {

/// The editor of a message: plain text, a line break is one "\n", and the user can't enter more characters
/// than the limit. What is too much is left away from the end of what was just entered, so that text behind
/// the cursor stays.
class MessageEdit final : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit MessageEdit(QWidget* parent = nullptr);

  /// The most UTF-16 units that the user can enter from now on; a longer text that is there already stays.
  void setTextLimit(int units) { limit_ = units; }
  [[nodiscard]] int textLimit() const { return limit_; }

  /// The text with its no-break spaces, which toPlainText() turns into common ones.
  [[nodiscard]] QString text() const;
  /// Length of text() in UTF-16 units.
  [[nodiscard]] int length() const;

  /// Replaces the text by one that came from elsewhere: the limit does not apply, and there is no way back.
  /// Zero characters, which would end the text on its way to the gateway, are left out.
  void setText(const QString& text);

  /// Cuts the text to its first `units`; the cursor stays where it is and undo brings all back.
  void truncate(int units);

 protected:
  [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  [[nodiscard]] int room() const;
  void noteChange(int position, int removed, int added);
  void enforceLimit();
  void removeJoined(int from, int to);

  int limit_ = 0;
  int insertionEnd_ = 0;
  bool isProgramsOwn_ = false;
};

}  // namespace parlexo
