#include "addressbook/screens/check_list_model.h"

namespace parlexo {

CheckListModel::CheckListModel(const QStringList& headers, QObject* parent)
    : QAbstractTableModel(parent), headers_(headers) {}

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
  // A bare check box would say nothing to who can't see the name beside it.
  if (role == Qt::AccessibleTextRole) return cell(index.row(), NameColumn);
  return {};
}

bool CheckListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return false;
  if (index.column() != SelectColumn || role != Qt::CheckStateRole) return false;
  setTicked(std::vector<int>{index.row()}, value.toInt() == Qt::Checked);
  return true;
}

void CheckListModel::setTicked(const std::vector<int>& rows, bool ticked) {
  RowSpan changed;
  for (const int row : rows) {
    setTicked(row, ticked);
    changed.include(row);
  }
  refreshTicks(changed);
}

void CheckListModel::refreshTicks(RowSpan rows) {
  if (rows.isEmpty()) return;
  Q_EMIT dataChanged(index(rows.first, SelectColumn), index(rows.last, SelectColumn), {Qt::CheckStateRole});
}

}  // namespace parlexo
