// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QList>
#include <QString>
#include <QStringList>

class QLineEdit;

namespace parlexo {

/// Returns the characters (grapheme clusters) of `text` that would be sent as "?": those missing in the code
/// page and the control characters that XML forbids. Each is listed once, in order of appearance; a control
/// character by its name, as in "BEL (bell)", any other invisible character by its number, as in "U+200B".
[[nodiscard]] QStringList unsendableCharacters(const QString& text);

/// A line of text that lists the typed characters that would be sent as "?". If there are none it is empty,
/// but keeps its place in the layout.
class UnsendableHint final : public QLabel {
  Q_OBJECT

 public:
  explicit UnsendableHint(QWidget* parent = nullptr);

  /// Shows the hint for `text`.
  void check(const QString& text);
  /// Shows the hint for the text of all `fields` and updates it as they change. The fields must outlive the
  /// hint. Characters of a password are not shown, only that it contains some.
  void watch(const QList<QLineEdit*>& fields);

 private:
  void checkFields(const QList<QLineEdit*>& fields);
  /// Also sets the tooltip, as the line is cut off on a narrow page.
  void showHint(const QStringList& characters);
};

}  // namespace parlexo
