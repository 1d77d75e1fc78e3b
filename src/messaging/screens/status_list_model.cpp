#include "messaging/screens/status_list_model.h"

#include <utility>

#include "messaging/core/status_order.h"
#include "ui/sorted_rows.h"

namespace parlexo {
namespace {

using Column = StatusListModel::Column;

QString titleOf(Column column) {
  switch (column) {
    case Column::Date:
      return QStringLiteral("Date");
    case Column::Receipt:
      return QStringLiteral("Receipt");
    case Column::Phone:
      return QStringLiteral("Phone");
    case Column::Status:
      return QStringLiteral("Status");
  }
  Q_UNREACHABLE();
}

const QString& fieldOf(const StatusEntry& entry, Column column) {
  switch (column) {
    case Column::Date:
      return entry.date;
    case Column::Receipt:
      return entry.receipt;
    case Column::Phone:
      return entry.phone;
    case Column::Status:
      return entry.status;
  }
  Q_UNREACHABLE();
}

}  // namespace

int StatusListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int StatusListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns;
}

QVariant StatusListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const StatusEntry& entry = entryAt(index.row());
  const auto column = static_cast<Column>(index.column());
  if (role == Qt::DisplayRole) return fieldOf(entry, column);
  if (role == recordSortRole && column == Column::Date) return static_cast<double>(statusInstant(entry.date));
  return {};
}

QVariant StatusListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QAbstractTableModel::headerData(section, orientation, role);
  return titleOf(static_cast<Column>(section));
}

void StatusListModel::fill(const StatusLog& log, const QString& typeWord) {
  std::vector<StatusEntry> rows;
  for (const auto& [receipt, entry] : log.entries())
    if (entry.type == typeWord) rows.push_back(entry);
  sortByStatusDate(rows);

  beginResetModel();
  rows_ = std::move(rows);
  rowOfReceipt_.clear();
  rowOfReceipt_.reserve(static_cast<qsizetype>(rows_.size()));
  for (int row = 0; row < rowCount(); ++row) rowOfReceipt_.insert(entryAt(row).receipt, row);
  endResetModel();
}

void StatusListModel::setStatus(const QString& receipt, const QString& status) {
  const auto found = rowOfReceipt_.constFind(receipt);
  if (found == rowOfReceipt_.constEnd()) return;
  rows_[static_cast<std::size_t>(*found)].status = status;
  const QModelIndex cell = index(*found, static_cast<int>(Column::Status));
  Q_EMIT dataChanged(cell, cell);
}

}  // namespace parlexo
