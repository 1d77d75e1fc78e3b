// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/sorted_rows.h"

#include <cmath>
#include <cstddef>

namespace parlexo {

SortedRows::SortedRows(QAbstractItemModel& source, QObject* parent) : QSortFilterProxyModel(parent) {
  setDynamicSortFilter(false);
  connect(&source, &QAbstractItemModel::modelAboutToBeReset, this, &SortedRows::clearKeys);
  connect(&source, &QAbstractItemModel::dataChanged, this, &SortedRows::clearKeys);
  setSourceModel(&source);
}

void SortedRows::sort(int column, Qt::SortOrder order) {
  clearKeys();
  // Column -1 with descending order would reverse the order of the model.
  QSortFilterProxyModel::sort(column, column < 0 ? Qt::AscendingOrder : order);
}

bool SortedRows::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const Key& a = keyAt(left);
  const Key& b = keyAt(right);
  if (a.isText != b.isText) return b.isText;
  if (a.number != b.number) return a.number < b.number;
  return a.text.compare(b.text, Qt::CaseInsensitive) < 0;
}

SortedRows::Key SortedRows::toKey(const QModelIndex& cell) {
  const QVariant sortKey = cell.data(recordSortRole);
  if (sortKey.isValid()) return {false, sortKey.toDouble(), {}};
  QString text = cell.data().toString();
  bool isNumber = false;
  const double number = text.toDouble(&isNumber);
  // toDouble() accepts "nan", which has no place in an ordering.
  if (isNumber && std::isfinite(number)) return {false, number, std::move(text)};
  return {true, 0.0, std::move(text)};
}

const SortedRows::Key& SortedRows::keyAt(const QModelIndex& cell) const {
  const QAbstractItemModel& source = *sourceModel();
  const auto rows = static_cast<std::size_t>(source.rowCount());
  if (keys_.size() != rows || keyedColumn_ != cell.column()) {
    keys_.clear();
    keys_.reserve(rows);
    for (int row = 0; row < source.rowCount(); ++row)
      keys_.push_back(toKey(source.index(row, cell.column())));
    keyedColumn_ = cell.column();
  }
  return keys_[static_cast<std::size_t>(cell.row())];
}

}  // namespace parlexo
