// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

namespace parlexo {

/// The editor of a message: plain text with "\n" as line break and a length limit for user input. Input over
/// the limit is truncated at its end; the text after the cursor stays.
class MessageEdit final : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit MessageEdit(QWidget* parent = nullptr);

  /// Sets the maximum length for further input, in UTF-16 units. Existing text is not truncated.
  void setTextLimit(int units) { limit_ = units; }
  [[nodiscard]] int textLimit() const { return limit_; }

  /// The text. Preserves no-break spaces, which toPlainText() replaces by spaces.
  [[nodiscard]] QString text() const;
  /// Length of text() in UTF-16 units.
  [[nodiscard]] int length() const;

  /// Replaces the text without applying the limit and clears the undo history. Removes null characters, which
  /// would terminate the text in a request to the gateway.
  void setText(const QString& text);

  /// Truncates the text to `units`. Can be undone; does not move the cursor.
  void truncate(int units);

 protected:
  [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  /// Units that can be entered in place of the selection.
  [[nodiscard]] int remainingUnits() const;
  void recordInsertion(int position, int removed, int added);
  void enforceLimit();
  void removeJoined(int from, int to);

  int limit_ = 0;
  int insertionEnd_ = 0;
  bool isProgramEdit_ = false;  ///< the program, not the user, is changing the text
};

}  // namespace parlexo
