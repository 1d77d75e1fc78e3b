// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QSortFilterProxyModel>
#include <QString>

namespace parlexo {

/// The role under which a model may name a number to sort a cell by, where its text would sort wrongly
/// (dates). Cells without one are sorted by their text.
inline constexpr int recordSortRole = Qt::UserRole;

/// The rows of a model in the order that the user asked for: numbers before texts, numbers by their value,
/// texts without regard to case, equal ones in the model's order. Column -1 is the model's own order.
/// Rows stay where they are while their cells change; the next sort or reset of the model moves them.
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

  [[nodiscard]] static Key keyOf(const QModelIndex& cell);
  [[nodiscard]] const Key& keyAt(const QModelIndex& cell) const;
  void forgetKeys() { keys_.clear(); }

  // Worked out once per row instead of once per comparison; empty when they have to be.
  mutable std::vector<Key> keys_;
  mutable int keyedColumn_ = -1;
};

}  // namespace parlexo
