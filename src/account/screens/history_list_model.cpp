#include "account/screens/history_list_model.h"

#include <cstddef>
#include <utility>

#include "ui/sorted_rows.h"

namespace parlexo {
namespace {

struct HistoryField {
  const char* heading;
  QString HistoryRecord::*value;
};

HistoryField fieldOf(HistoryListModel::Column column) {
  switch (column) {
    case HistoryListModel::Column::Id:
      return {"ID", &HistoryRecord::id};
    case HistoryListModel::Column::Date:
      return {"Date", &HistoryRecord::date};
    case HistoryListModel::Column::Amount:
      return {"Amount", &HistoryRecord::amount};
    case HistoryListModel::Column::Description:
      return {"Description", &HistoryRecord::description};
  }
  Q_UNREACHABLE();
}

}  // namespace

int HistoryListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(records_.size());
}

int HistoryListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns;
}

QVariant HistoryListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const HistoryRecord& record = records_[static_cast<std::size_t>(index.row())];
  const auto column = static_cast<Column>(index.column());
  if (role == Qt::DisplayRole) return record.*fieldOf(column).value;
  if (role != recordSortRole || column != Column::Date) return {};
  const auto order = historyDateOrder(record.date);
  return order ? QVariant(*order) : QVariant();
}

QVariant HistoryListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QAbstractTableModel::headerData(section, orientation, role);
  return QString::fromLatin1(fieldOf(static_cast<Column>(section)).heading);
}

void HistoryListModel::fill(std::vector<HistoryRecord> records) {
  beginResetModel();
  records_ = std::move(records);
  endResetModel();
}

}  // namespace parlexo
