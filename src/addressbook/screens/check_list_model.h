// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>

#include "addressbook/core/selection_lists.h"
#include "addressbook/core/text_search.h"

namespace parlexo {

/// A table whose first column is a check box for the row and whose second column is the row's name: what
/// the two lists of the contact selection dialog have in common. Its rows are those of the entries that the
/// user searches for, all of them at first. It holds no text of its own but the search's, so that 100,000
/// entries cost next to nothing until they are painted.
class CheckListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { SelectColumn, NameColumn, NumberColumn };

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  /// The text of a cell, empty for the check box column.
  [[nodiscard]] QString cell(int row, int column) const { return entryCell(entryOf(row), column); }
  [[nodiscard]] bool isTicked(int row) const { return isEntryTicked(entryOf(row)); }
  /// How many of the rows are ticked.
  [[nodiscard]] int tickedRowCount() const;
  /// Ticks or unticks the rows, which must exist; the view is told once for all of them.
  void setTicked(const std::vector<int>& rows, bool ticked);
  /// Tells the view that the check boxes of these entries, shown or not, may have changed.
  void refreshTicks(RowSpan entries);

  /// Reads all entries for searches to come. The first search does so where nobody has, but is slow then.
  void prepareSearch();
  /// Shows the entries that have every word of `typed`, in the same order as before; ticks stay as they are.
  void search(const QString& typed);

 Q_SIGNALS:
  /// Ticks of shown or hidden entries may have changed.
  void ticksChanged();

 protected:
  CheckListModel(const QStringList& headers, int entryCount, QObject* parent);

 private:
  [[nodiscard]] virtual QString entryCell(int entry, int column) const = 0;
  [[nodiscard]] virtual bool isEntryTicked(int entry) const = 0;
  virtual void setEntryTicked(int entry, bool ticked) = 0;
  /// Gives `search` the fields of the entry in which the user can look for something.
  virtual void addSearchedFields(int entry, TextSearch& search) const = 0;

  [[nodiscard]] int entryOf(int row) const { return shown_[static_cast<std::size_t>(row)]; }

  QStringList headers_;
  int entryCount_;
  std::vector<int> shown_;
  TextSearch search_;
  bool isSearchReady_ = false;
  QString searched_;
};

}  // namespace parlexo
