// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QBoxLayout;
class QDialog;
class QLabel;
class QLayout;
class QLineEdit;
class QWidget;

namespace parlexo {

class PictureButton;

/// Creates a line edit that only displays text.
[[nodiscard]] QLineEdit* readOnlyField(const QString& objectName, QWidget* parent);

/// Creates a label with the parent of `control`, which gets the focus when the mnemonic in `text` is pressed.
[[nodiscard]] QLabel* labelFor(QWidget* control, const QString& text);

/// Creates a label with word wrap.
[[nodiscard]] QLabel* wrappedLabel(const QString& text, QWidget* parent);

/// Creates a row with `text` followed by `link`. The row keeps its height when the link is hidden or shown.
/// If it is too narrow for both, the text is cut off. The caller's layout takes ownership of the row.
[[nodiscard]] QLayout* lineWithLink(QLabel& text, QWidget& link);

/// Creates a button and appends it to `row`.
PictureButton* addButton(QBoxLayout& row, const QString& objectName, const QString& text);

struct DialogButton {
  QString objectName;
  QString text;
};

/// Creates the bottom row of a dialog: the default button, which accepts it, and a button that rejects it.
/// The caller's layout takes ownership of the row.
[[nodiscard]] QLayout* dialogButtonRow(QDialog& dialog, const DialogButton& accepting,
                                       const DialogButton& rejecting);

/// The same with the buttons "OK" and "Cancel".
[[nodiscard]] QLayout* okAndCancelRow(QDialog& dialog);

/// Clears a password field and its undo history, and overwrites the text in memory.
void wipeField(QLineEdit& field);

}  // namespace parlexo
