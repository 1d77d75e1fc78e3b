#include "addressbook/screens/check_list_view.h"

#include <algorithm>

#include <QApplication>
#include <QHeaderView>
#include <QItemSelection>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QScrollBar>

#include "ui/list_style.h"

namespace parlexo {

CheckListView::CheckListView(CheckListModel& model, const QString& label, QWidget* parent)
    : QTreeView(parent), model_(model) {
  styleList(*this);
  setModel(&model);
  setAccessibleName(label);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  header()->setStretchLastSection(false);
}

void CheckListView::setColumnWidths(const std::vector<int>& widths) {
  for (int column = 0; column < static_cast<int>(widths.size()); ++column) {
    setColumnWidth(column, std::max(widths[column], header()->sectionSizeHint(column)));
  }
}

int CheckListView::fittingWidth() const {
  return header()->length() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
}

void CheckListView::keyboardSearch(const QString& letters) {
  const bool isFresh =
      !sinceTyped_.isValid() || sinceTyped_.hasExpired(QApplication::keyboardInputInterval());
  sinceTyped_.start();
  typed_ = isFresh ? letters : typed_ + letters;
  // A fresh letter goes on to the next name; further letters of a name may stay where they are.
  const int row = rowOfName(typed_, currentIndex().row() + (isFresh ? 1 : 0));
  if (row >= 0) setCurrentIndex(model_.index(row, CheckListModel::SelectColumn));
}

int CheckListView::rowOfName(const QString& beginning, int from) const {
  const int count = model_.rowCount();
  for (int step = 0; step < count; ++step) {
    const int row = (std::max(from, 0) + step) % count;
    if (model_.cell(row, CheckListModel::NameColumn).startsWith(beginning, Qt::CaseInsensitive)) return row;
  }
  return -1;
}

void CheckListView::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
  if (isPlain && (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select)) {
    toggleSelectedRows();
    return;
  }
  QTreeView::keyPressEvent(event);
}

void CheckListView::focusInEvent(QFocusEvent* event) {
  QTreeView::focusInEvent(event);
  const bool isByKeyboard = event->reason() != Qt::MouseFocusReason;
  if (isByKeyboard && !selectionModel()->hasSelection() && model_.rowCount() > 0) {
    setCurrentIndex(model_.index(std::max(currentIndex().row(), 0), CheckListModel::SelectColumn));
  }
}

void CheckListView::toggleSelectedRows() {
  const std::vector<int> rows = rowsToToggle();
  if (!rows.empty()) model_.setTicked(rows, !model_.isTicked(currentIndex().row()));
}

std::vector<int> CheckListView::rowsToToggle() const {
  if (!currentIndex().isValid()) return {};
  const int current = currentIndex().row();
  if (!selectionModel()->isRowSelected(current)) return {current};
  std::vector<int> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  return rows;
}

}  // namespace parlexo
