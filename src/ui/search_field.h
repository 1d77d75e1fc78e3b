// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

class QAbstractItemView;
class QHBoxLayout;

namespace parlexo {

/// The field above a list in which the user types what to look for. Down and Enter go on to the list, so
/// that Enter never closes a dialog in the middle of a search; Escape first clears what was typed.
class SearchField final : public QLineEdit {
  Q_OBJECT

 public:
  /// `hint` stands in the empty field and is its name for a screen reader. `list` must outlive the field.
  SearchField(const QString& hint, QAbstractItemView& list, QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QAbstractItemView& list_;
};

/// What stands above a list: its caption, whose mnemonic leads to the search, and the search. The caller's
/// layout takes the row.
[[nodiscard]] QHBoxLayout* searchRow(const QString& caption, SearchField& search);

}  // namespace parlexo
