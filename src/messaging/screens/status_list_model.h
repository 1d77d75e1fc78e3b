#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QHash>

#include "messaging/core/status_log.h"

namespace parlexo {

/// The rows of the status page: the entries of one message type in their order.
class StatusListModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum class Column { Date, Receipt, Phone, Status };
  static constexpr int columns = 4;

  using QAbstractTableModel::QAbstractTableModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role = Qt::DisplayRole) const override;

  /// Replaces all rows by the entries of `log` whose type is exactly `typeWord`.
  void fill(const StatusLog& log, const QString& typeWord);

  /// Shows another status in the row of `receipt`, if there is one.
  void setStatus(const QString& receipt, const QString& status);

  [[nodiscard]] const StatusEntry& entryAt(int row) const { return rows_[static_cast<std::size_t>(row)]; }

 private:
  std::vector<StatusEntry> rows_;
  QHash<QString, int> rowOfReceipt_;
};

}  // namespace parlexo
