// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

namespace parlexo {

/// Base class of the models for RecordTable: headings, a text per cell, and a sort key for cells whose text
/// would sort in the wrong order. Derived classes provide the rows.
class RecordListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit RecordListModel(QStringList headings, QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role = Qt::DisplayRole) const override;

 protected:
  [[nodiscard]] virtual int recordCount() const = 0;
  [[nodiscard]] virtual QString textAt(int row, int column) const = 0;
  /// Numeric sort key of a cell; an invalid QVariant if the cell sorts by its text.
  [[nodiscard]] virtual QVariant sortNumberAt(int row, int column) const = 0;

 private:
  QStringList headings_;
};

}  // namespace parlexo
