// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

class QAbstractItemView;
class QHBoxLayout;

namespace parlexo {

/// The search field above a list. Down and Enter move the focus to the list, so Enter does not close the
/// dialog during a search. Escape clears the text, or is passed on if the field is empty.
class SearchField final : public QLineEdit {
  Q_OBJECT

 public:
  /// `hint` is the placeholder text and the accessible name. `list` must outlive the field.
  SearchField(const QString& hint, QAbstractItemView& list, QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QAbstractItemView& list_;
};

/// Creates the row above a list: its caption, whose mnemonic focuses the search field, and the search field.
/// The caller's layout takes ownership of the row.
[[nodiscard]] QHBoxLayout* searchRow(const QString& caption, SearchField& search);

}  // namespace parlexo
