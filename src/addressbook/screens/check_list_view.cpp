// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/check_list_view.h"

#include <QItemSelectionModel>
#include <QKeyEvent>

namespace parlexo {

CheckListView::CheckListView(CheckListModel& model, const QString& label, QWidget* parent)
    : RowListView(
          model, [&model](int row) { return model.cell(row, CheckListModel::NameColumn); }, label, parent),
      model_(model) {}

void CheckListView::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
  if (isPlain && (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select)) {
    toggleSelectedRows();
    return;
  }
  RowListView::keyPressEvent(event);
}

void CheckListView::toggleSelectedRows() {
  const std::vector<int> rows = rowsToToggle();
  if (!rows.empty()) model_.setTicked(rows, !model_.isTicked(currentIndex().row()));
}

std::vector<int> CheckListView::rowsToToggle() const {
  if (!currentIndex().isValid()) return {};
  const int current = currentIndex().row();
  if (!selectionModel()->isRowSelected(current)) return {current};
  return selectedRows();
}

}  // namespace parlexo
