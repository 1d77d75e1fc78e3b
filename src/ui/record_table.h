// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>
#include <QTreeView>

#include "base/csv_writer.h"

namespace parlexo {

class Settings;
class SortedRows;

/// A list of records that the user reads, sorts, copies and exports. A click on a heading sorts by that
/// column, the next one turns the order round and a third brings the model's own order back. Ctrl+C copies
/// the selected rows. Widths that the user gives to the columns last from run to run.
class RecordTable final : public QTreeView {
  Q_OBJECT

 public:
  struct Column {
    int usual;       ///< width in pixels
    QString widest;  ///< what must never be cut off, whatever the font; may be empty
  };
  struct Form {
    QString name;   ///< object name, and the name under which the widths are kept
    QString label;  ///< what a screen reader calls the list
    std::vector<Column> columns;
    bool hasGrid = false;
  };

  /// `records` and `settings` must outlive the table. `records` may change its cells and reset itself.
  RecordTable(QAbstractItemModel& records, const Form& form, Settings& settings, QWidget* parent = nullptr);

  /// The rows of `records` that are selected, in the order in which they are shown.
  [[nodiscard]] std::vector<int> selectedRecords() const;
  /// Selects a row of `records` alone and scrolls to it.
  void selectRecord(int row);

  /// Puts the selected rows on the clipboard, with tabs between the cells, as the columns stand.
  void copySelected() const;
  /// All rows with their headings, as they stand. Cells that a spreadsheet would calculate are made harmless.
  [[nodiscard]] CsvWriter toCsv() const;

 protected:
  void showEvent(QShowEvent* event) override;
  void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

 private:
  void setUpColumns(const std::vector<Column>& columns);
  void setUpSorting();
  void keepWidth(int column, int width);
  /// The cells of a shown row in the order of the columns; the headings for row -1.
  [[nodiscard]] QStringList cellsOf(int shownRow) const;

  SortedRows* rows_;
  Settings& settings_;
  bool hasGrid_;
  bool scrollsWhenShown_ = false;  // a list without a place on the screen can't scroll to a row
};

}  // namespace parlexo
