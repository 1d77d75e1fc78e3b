// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/status_list_model.h"

#include <array>
#include <cstddef>
#include <utility>

#include "messaging/core/status_order.h"

namespace parlexo {

namespace {

// In column order.
constexpr std::array<QString StatusEntry::*, 4> statusFields = {&StatusEntry::date, &StatusEntry::receipt,
                                                                &StatusEntry::phone, &StatusEntry::status};
constexpr int dateColumn = 0;
constexpr int statusColumn = 3;

const QString& statusCell(const StatusEntry& entry, int column) {
  return entry.*statusFields.at(static_cast<std::size_t>(column));
}

}  // namespace

StatusListModel::StatusListModel(QObject* parent)
    : RecordListModel({tr("Date"), tr("Receipt"), tr("Phone"), tr("Status")}, parent) {}

QString StatusListModel::textAt(int row, int column) const {
  return statusCell(entryAt(row), column);
}

QVariant StatusListModel::sortNumberAt(int row, int column) const {
  if (column != dateColumn) return {};
  return static_cast<double>(statusInstant(entryAt(row).date));
}

void StatusListModel::fill(const StatusLog& log, MessageType type) {
  const QString typeWord = toWord(type);
  std::vector<StatusEntry> rows;
  for (const auto& [receipt, entry] : log.entries())
    if (entry.type == typeWord) rows.push_back(entry);
  sortByStatusDate(rows);

  beginResetModel();
  rows_ = std::move(rows);
  rowByReceipt_.clear();
  rowByReceipt_.reserve(static_cast<qsizetype>(rows_.size()));
  for (int row = 0; row < rowCount(); ++row) rowByReceipt_.insert(entryAt(row).receipt, row);
  endResetModel();
}

void StatusListModel::setStatus(const QString& receipt, const QString& status) {
  const auto row = rowByReceipt_.constFind(receipt);
  if (row == rowByReceipt_.constEnd()) return;
  rows_[static_cast<std::size_t>(*row)].status = status;
  const QModelIndex cell = index(*row, statusColumn);
  Q_EMIT dataChanged(cell, cell);
}

}  // namespace parlexo
