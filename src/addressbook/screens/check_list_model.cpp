// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/check_list_model.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include <QItemSelectionModel>
#include <QKeyEvent>

namespace parlexo {

CheckListModel::CheckListModel(const QStringList& headers, int entryCount, QObject* parent)
    : QAbstractTableModel(parent),
      headers_(headers),
      entryCount_(entryCount),
      shown_(static_cast<std::size_t>(entryCount)) {
  std::iota(shown_.begin(), shown_.end(), 0);
}

int CheckListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int CheckListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(headers_.size());
}

QVariant CheckListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= headers_.size()) return {};
  if (role == Qt::DisplayRole) return headers_[section];
  if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

Qt::ItemFlags CheckListModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
  return index.column() == SelectColumn ? plain | Qt::ItemIsUserCheckable : plain;
}

QVariant CheckListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  if (role == Qt::DisplayRole) return cell(index.row(), index.column());
  if (index.column() != SelectColumn) return {};
  if (role == Qt::CheckStateRole) return int(isTicked(index.row()) ? Qt::Checked : Qt::Unchecked);
  // A screen reader announces the check box by the name beside it.
  if (role == Qt::AccessibleTextRole) return cell(index.row(), NameColumn);
  return {};
}

bool CheckListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return false;
  if (index.column() != SelectColumn || role != Qt::CheckStateRole) return false;
  setTicked(std::vector<int>{index.row()}, value.toInt() == Qt::Checked);
  return true;
}

int CheckListModel::tickedRowCount() const {
  return static_cast<int>(
      std::count_if(shown_.begin(), shown_.end(), [this](int entry) { return isEntryTicked(entry); }));
}

void CheckListModel::setTicked(const std::vector<int>& rows, bool ticked) {
  RowSpan changed;
  for (const int row : rows) {
    setEntryTicked(entryAt(row), ticked);
    changed.include(entryAt(row));
  }
  refreshTicks(changed);
}

void CheckListModel::refreshTicks(RowSpan entries) {
  const auto first = std::lower_bound(shown_.begin(), shown_.end(), entries.first);
  const auto last = std::upper_bound(first, shown_.end(), entries.last);
  if (!entries.isEmpty()) Q_EMIT ticksChanged();
  if (entries.isEmpty() || first == last) return;
  const auto firstRow = static_cast<int>(first - shown_.begin());
  const auto lastRow = static_cast<int>(last - shown_.begin()) - 1;
  Q_EMIT dataChanged(index(firstRow, SelectColumn), index(lastRow, SelectColumn), {Qt::CheckStateRole});
}

void CheckListModel::prepareSearch() {
  if (std::exchange(isSearchReady_, true)) return;
  search_.reserve(static_cast<std::size_t>(entryCount_));
  for (int entry = 0; entry < entryCount_; ++entry) {
    addSearchedFields(entry, search_);
    search_.endText();
  }
}

void CheckListModel::search(const QString& typed) {
  prepareSearch();
  // Appending to the search text can only remove rows.
  const bool narrows = typed.startsWith(searched_);
  std::vector<int> matches = narrows ? search_.find(typed, shown_) : search_.find(typed);
  searched_ = typed;
  if (matches == shown_) return;
  beginResetModel();
  shown_ = std::move(matches);
  endResetModel();
}

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
