// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>

#include "addressbook/core/selection_lists.h"
#include "addressbook/core/text_search.h"
#include "ui/row_list_view.h"

namespace parlexo {

/// Base class of the models of the two lists in the contact selection dialog. The first column is a check
/// box, the second a name. The rows are the entries that match the search, initially all of them. Cell texts
/// are not stored, which keeps a list of 100,000 entries cheap; only the search has a copy of them.
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

  /// The text of a cell; empty in the check box column.
  [[nodiscard]] QString cell(int row, int column) const { return entryCell(entryAt(row), column); }
  [[nodiscard]] bool isTicked(int row) const { return isEntryTicked(entryAt(row)); }
  /// The number of ticked rows.
  [[nodiscard]] int tickedRowCount() const;
  /// Ticks or unticks the rows, which must exist. Notifies views once for all rows.
  void setTicked(const std::vector<int>& rows, bool ticked);
  /// Notifies views that the ticks of these entries, visible or not, may have changed.
  void refreshTicks(RowSpan entries);

  /// Prepares the text of all entries for searching. Otherwise the first search does so and takes longer.
  void prepareSearch();
  /// Shows only the entries that contain every word of `typed`. Order and ticks do not change.
  void search(const QString& typed);

 Q_SIGNALS:
  /// Ticks of visible or hidden entries may have changed.
  void ticksChanged();

 protected:
  CheckListModel(const QStringList& headers, int entryCount, QObject* parent);

 private:
  [[nodiscard]] virtual QString entryCell(int entry, int column) const = 0;
  [[nodiscard]] virtual bool isEntryTicked(int entry) const = 0;
  virtual void setEntryTicked(int entry, bool ticked) = 0;
  /// Adds the searchable fields of the entry to `search`.
  virtual void addSearchedFields(int entry, TextSearch& search) const = 0;

  [[nodiscard]] int entryAt(int row) const { return shown_[static_cast<std::size_t>(row)]; }

  QStringList headers_;
  int entryCount_;
  std::vector<int> shown_;
  TextSearch search_;
  bool isSearchReady_ = false;
  QString searched_;
};

/// A list view of a CheckListModel in which the space bar ticks or unticks the selected rows.
class CheckListView final : public RowListView {
  Q_OBJECT

 public:
  /// `label` is the accessible name. `model` must outlive the view.
  CheckListView(CheckListModel& model, const QString& label, QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void toggleSelectedRows();
  [[nodiscard]] std::vector<int> rowsToToggle() const;

  CheckListModel& model_;
};

}  // namespace parlexo
