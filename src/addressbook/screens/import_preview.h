// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QWidget>

#include "addressbook/core/import_columns.h"
#include "addressbook/core/import_row.h"

class QComboBox;
class QTableWidget;

namespace parlexo {

/// Preview of the first rows of a file to import. A combo box above each column assigns it to a contact
/// field; the first cell of each row shows the resulting contact, or why the row will be refused.
class ImportPreview final : public QWidget {
  Q_OBJECT

 public:
  explicit ImportPreview(QWidget* parent = nullptr);

  /// Shows the first rows of `sheet`, with the columns assigned as in `plan`.
  void show(const Sheet& sheet, const ImportPlan& plan);
  /// Updates the resulting contacts for a plan with the same columns.
  void updateResults(const Sheet& sheet, const ImportPlan& plan);

  /// The current assignment of the columns.
  [[nodiscard]] ImportColumns columns() const;
  /// The table, to be the buddy of a label.
  [[nodiscard]] QTableWidget* table() const { return table_; }
  /// Places the combo boxes and then the table after `previous` in the tab order. Must be called after each
  /// show(), which creates new combo boxes.
  void setTabOrderAfter(QWidget* previous);

  [[nodiscard]] QSize sizeHint() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void columnsChanged();

 private:
  /// Aligns the combo boxes with their columns after scrolling or resizing.
  void placeChoices();
  void scrollToChoice(const QComboBox& choice);
  void addChoice(int column, ImportField field);
  void applyChoice(int column);
  void fillRows(const Sheet& sheet, const ImportPlan& plan);

  QWidget* strip_;  ///< parent of the combo boxes; assistive tools would not find them in table cells
  QTableWidget* table_;
  std::vector<QComboBox*> choices_;
  ImportColumns columns_;
  std::vector<int> rows_;  ///< row numbers in the sheet
};

}  // namespace parlexo
