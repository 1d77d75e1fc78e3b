// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/record_list_model.h"

#include <utility>

#include "ui/sorted_rows.h"

namespace parlexo {

RecordListModel::RecordListModel(QStringList headings, QObject* parent)
    : QAbstractTableModel(parent), headings_(std::move(headings)) {}

int RecordListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : recordCount();
}

int RecordListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return textAt(index.row(), index.column());
  return role == recordSortRole ? sortNumberAt(index.row(), index.column()) : QVariant();
}

QVariant RecordListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QAbstractTableModel::headerData(section, orientation, role);
  return headings_.value(section);
}

}  // namespace parlexo
