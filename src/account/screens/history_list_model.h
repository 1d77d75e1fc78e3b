#pragma once

#include <vector>

#include <QAbstractTableModel>

#include "account/core/account_history.h"

namespace parlexo {

/// The rows of the account history in the gateway's order.
class HistoryListModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum class Column { Id, Date, Amount, Description };
  static constexpr int columns = 4;

  using QAbstractTableModel::QAbstractTableModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role = Qt::DisplayRole) const override;

  /// Replaces all rows.
  void fill(std::vector<HistoryRecord> records);

 private:
  std::vector<HistoryRecord> records_;
};

}  // namespace parlexo
