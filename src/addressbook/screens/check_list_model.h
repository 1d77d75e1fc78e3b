#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>

#include "addressbook/core/selection_lists.h"

namespace parlexo {

/// A table whose first column is a check box for the row and whose second column is the row's name: what
/// the two lists of the contact selection dialog have in common. It holds no row itself, so that 100,000 of
/// them cost nothing until they are painted.
class CheckListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { SelectColumn, NameColumn, NumberColumn };

  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  /// The text of a cell, empty for the check box column.
  [[nodiscard]] virtual QString cell(int row, int column) const = 0;
  [[nodiscard]] virtual bool isTicked(int row) const = 0;
  /// Ticks or unticks the rows, which must exist; the view is told once for all of them.
  void setTicked(const std::vector<int>& rows, bool ticked);
  /// Tells the view that the check boxes of these rows may have changed.
  void refreshTicks(RowSpan rows);

 protected:
  CheckListModel(const QStringList& headers, QObject* parent);

 private:
  virtual void setTicked(int row, bool ticked) = 0;

  QStringList headers_;
};

}  // namespace parlexo
