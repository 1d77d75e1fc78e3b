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

/// The small controls that pages and dialogs have in common.

/// A field that shows a text of the program.
[[nodiscard]] QLineEdit* readOnlyField(const QString& objectName, QWidget* parent);

/// A label whose mnemonic leads to `control`, with the same parent.
[[nodiscard]] QLabel* labelFor(QWidget* control, const QString& text);

/// A text that takes as many lines as it needs.
[[nodiscard]] QLabel* wrappedLabel(const QString& text, QWidget* parent);

/// A line of a text and a link behind it that comes and goes: nothing else moves then. Where there is no room
/// for both, the text is cut off.
[[nodiscard]] QLayout* lineWithLink(QLabel& text, QWidget& link);

/// A new button at the end of `row`.
PictureButton* addButton(QBoxLayout& row, const QString& objectName, const QString& text);

/// A button of a dialog's last row.
struct DialogButton {
  QString objectName;
  QString text;
};

/// The last row of a dialog: the button that accepts it, its default, and the one that rejects it. The
/// caller's layout takes the row.
[[nodiscard]] QLayout* dialogButtonRow(QDialog& dialog, const DialogButton& accepting,
                                       const DialogButton& rejecting);

/// Empties a field that held a password, also of what its undo would bring back, and overwrites the text in
/// memory.
void wipeField(QLineEdit& field);

}  // namespace parlexo
