// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/history_list_model.h"

#include <array>
#include <cstddef>
#include <utility>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// In the order of the columns.
constexpr std::array<QString HistoryRecord::*, 4> historyFields = {
    &HistoryRecord::id, &HistoryRecord::date, &HistoryRecord::amount, &HistoryRecord::description};
constexpr int historyDateColumn = 1;

const QString& historyCell(const HistoryRecord& record, int column) {
  return record.*historyFields.at(static_cast<std::size_t>(column));
}

}  // namespace

HistoryListModel::HistoryListModel(QObject* parent)
    : RecordListModel({u"ID"_s, u"Date"_s, u"Amount"_s, u"Description"_s}, parent) {}

QString HistoryListModel::textAt(int row, int column) const {
  return historyCell(records_[static_cast<std::size_t>(row)], column);
}

QVariant HistoryListModel::sortNumberAt(int row, int column) const {
  const HistoryRecord& record = records_[static_cast<std::size_t>(row)];
  if (column != historyDateColumn) return {};
  const auto order = historyDateOrder(record.date);
  return order ? QVariant(*order) : QVariant();
}

void HistoryListModel::fill(std::vector<HistoryRecord> records) {
  beginResetModel();
  records_ = std::move(records);
  endResetModel();
}

}  // namespace parlexo
