// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QSortFilterProxyModel>
#include <QString>

namespace parlexo {

/// Item role for a numeric sort key, for cells whose text would sort in the wrong order, such as dates.
/// Cells without one are sorted by their text.
inline constexpr int recordSortRole = Qt::UserRole;

/// Sorts the rows of a model by one column: numbers by value, before texts; texts case-insensitively; equal
/// cells in the order of the model. Column -1 restores the order of the model. Rows are not moved when their
/// cells change, only by the next sort or model reset.
class SortedRows final : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  explicit SortedRows(QAbstractItemModel& source, QObject* parent = nullptr);

  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

 protected:
  [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  struct Key {
    bool isText = true;
    double number = 0.0;
    QString text;
  };

  [[nodiscard]] static Key toKey(const QModelIndex& cell);
  [[nodiscard]] const Key& keyAt(const QModelIndex& cell) const;
  void clearKeys() { keys_.clear(); }

  // Computed once per row instead of once per comparison; empty if outdated.
  mutable std::vector<Key> keys_;
  mutable int keyedColumn_ = -1;
};

}  // namespace parlexo
