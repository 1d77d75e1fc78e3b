// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>
#include <QTreeView>

#include "base/csv_writer.h"

namespace parlexo {

class Settings;
class SortedRows;

/// A read-only list of records that can be sorted, copied and exported. A click on a heading sorts by that
/// column, a second click reverses the order and a third one restores the order of the model. Ctrl+C copies
/// the selected rows. Column widths are saved in the settings.
class RecordTable final : public QTreeView {
  Q_OBJECT

 public:
  struct Column {
    int usual;       ///< default width in pixels
    QString widest;  ///< longest text that must not be cut off in any font; may be empty
  };
  struct Form {
    QString name;   ///< object name, also the settings key of the column widths
    QString label;  ///< accessible name
    std::vector<Column> columns;
    bool hasGrid = false;
  };

  /// `records` and `settings` must outlive the table. `records` may change cells and be reset, but must not
  /// insert or remove rows otherwise.
  RecordTable(QAbstractItemModel& records, const Form& form, Settings& settings, QWidget* parent = nullptr);

  /// Row numbers in `records` of the selected rows, in display order.
  [[nodiscard]] std::vector<int> selectedRecords() const;
  /// Selects only this row of `records` and scrolls to it.
  void selectRecord(int row);

  /// Copies the selected rows to the clipboard, with tabs between the cells, in display order.
  void copySelected() const;
  /// Returns all rows with their headings, in display order. Cells that a spreadsheet would evaluate as
  /// formulas are escaped.
  [[nodiscard]] CsvWriter toCsv() const;

 protected:
  void showEvent(QShowEvent* event) override;
  void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

 private:
  void setUpColumns(const std::vector<Column>& columns);
  void setUpSorting();
  void saveColumnWidth(int column, int width);
  /// The texts of a displayed row, or the headings for row -1, in display order of the columns.
  [[nodiscard]] QStringList rowTexts(int shownRow) const;

  SortedRows* rows_;
  Settings& settings_;
  bool hasGrid_;
  bool scrollsWhenShown_ = false;  // scrolling has no effect while the list is hidden
};

}  // namespace parlexo
