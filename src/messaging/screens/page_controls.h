#pragma once

class QLabel;
class QLineEdit;
class QString;
class QWidget;

namespace parlexo {

/// The small controls that the messaging pages and dialogs have in common.

/// A field that shows a text of the program.
[[nodiscard]] QLineEdit* readOnlyField(const QString& objectName, QWidget* parent);

/// A label whose mnemonic leads to `control`, with the same parent.
[[nodiscard]] QLabel* labelFor(QWidget* control, const QString& text);

}  // namespace parlexo
