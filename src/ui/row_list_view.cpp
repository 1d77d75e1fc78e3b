// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/row_list_view.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QFocusEvent>
#include <QHeaderView>
#include <QItemSelection>
#include <QItemSelectionModel>
#include <QScrollBar>
#include <QSet>

#include "ui/list_style.h"

namespace parlexo {

RowListView::RowListView(QAbstractItemModel& model, std::function<QString(int row)> nameAt,
                         const QString& label, QWidget* parent)
    : QTreeView(parent), nameAt_(std::move(nameAt)) {
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

void RowListView::setColumnWidths(const std::vector<int>& widths) {
  for (int column = 0; column < static_cast<int>(widths.size()); ++column) {
    setColumnWidth(column, std::max(widths[column], header()->sectionSizeHint(column)));
  }
}

int RowListView::fittingWidth() const {
  return header()->length() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
}

std::vector<int> RowListView::selectedRows() const {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

QStringList RowListView::selectedNames() const {
  QStringList names;
  for (const int row : selectedRows()) names.append(nameAt_(row));
  return names;
}

void RowListView::selectNames(const QStringList& names) {
  const QSet<QString> nameSet(names.begin(), names.end());
  QItemSelection selection;
  for (int row = 0; !nameSet.isEmpty() && row < model()->rowCount(); ++row)
    if (nameSet.contains(nameAt_(row))) selection.select(model()->index(row, 0), model()->index(row, 0));
  QModelIndex first;
  if (!selection.isEmpty()) first = selection.front().topLeft();
  selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void RowListView::preserveSelection(const std::function<void()>& change) {
  const QStringList selected = selectedNames();
  const int current = currentIndex().row();
  const QString currentName = current < 0 ? QString() : nameAt_(current);
  const int scrolled = verticalScrollBar()->value();
  change();
  // Nothing to restore if the model was not reset.
  if (currentIndex().row() == current && selectedNames() == selected) return;
  selectNames(selected);
  if (current >= 0) makeCurrent(currentName);
  verticalScrollBar()->setValue(scrolled);
}

void RowListView::makeCurrent(const QString& name) {
  for (int row = 0; row < model()->rowCount(); ++row) {
    if (nameAt_(row) != name) continue;
    selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::NoUpdate);
    return;
  }
}

int RowListView::chosenRow() const {
  const int current = currentIndex().row();
  if (current >= 0 && selectionModel()->isRowSelected(current)) return current;
  const std::vector<int> rows = selectedRows();
  return rows.empty() ? -1 : rows.front();
}

void RowListView::keyboardSearch(const QString& letters) {
  const bool isFirst =
      !sinceTyped_.isValid() || sinceTyped_.hasExpired(QApplication::keyboardInputInterval());
  sinceTyped_.start();
  typed_ = isFirst ? letters : typed_ + letters;
  // The first letter moves on to the next match; further letters may stay on the current row.
  const int row = findName(typed_, currentIndex().row() + (isFirst ? 1 : 0));
  if (row >= 0) setCurrentIndex(model()->index(row, 0));
}

int RowListView::findName(const QString& beginning, int from) const {
  const int count = model()->rowCount();
  for (int step = 0; step < count; ++step) {
    const int row = (std::max(from, 0) + step) % count;
    if (nameAt_(row).startsWith(beginning, Qt::CaseInsensitive)) return row;
  }
  return -1;
}

void RowListView::focusInEvent(QFocusEvent* event) {
  QTreeView::focusInEvent(event);
  const bool isByKeyboard = event->reason() != Qt::MouseFocusReason;
  if (isByKeyboard && !selectionModel()->hasSelection() && model()->rowCount() > 0) {
    setCurrentIndex(model()->index(std::max(currentIndex().row(), 0), 0));
  }
}

}  // namespace parlexo
