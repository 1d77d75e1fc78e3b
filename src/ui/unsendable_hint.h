// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QList>

class QLineEdit;

namespace parlexo {

/// The quiet line that tells which of the typed characters the code page lacks, so that they would be sent as
/// "?". Empty, but in its place, when there are none.
class UnsendableHint final : public QLabel {
  Q_OBJECT

 public:
  explicit UnsendableHint(QWidget* parent = nullptr);

  /// Looks at a text as it stands now.
  void follow(const QString& text);
  /// From now on tells about all of `fields` together, which must live as long as the hint. Of a password it
  /// only says that there is something to tell.
  void watch(const QList<QLineEdit*>& fields);

 private:
  /// Shows the list, in a tool tip as well: on a narrow page the line is cut off.
  void showHint(const QStringList& characters);
  void tellOf(const QList<QLineEdit*>& fields);
};

}  // namespace parlexo
