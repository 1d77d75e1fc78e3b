// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QWidget>

#include "addressbook/core/import_columns.h"
#include "addressbook/core/import_row.h"

class QComboBox;
class QTableWidget;

namespace parlexo {

/// The first rows of an imported file as they will be read. Above each column the user chooses what the
/// column becomes; the first cell of each row shows the contact it will be, or why it will be refused.
class ImportPreview final : public QWidget {
  Q_OBJECT

 public:
  explicit ImportPreview(QWidget* parent = nullptr);

  /// Shows the sheet's first rows, with `columns` chosen above them.
  void show(const Sheet& sheet, const ImportPlan& plan);
  /// Reads the rows anew by another plan for the same columns.
  void judge(const Sheet& sheet, const ImportPlan& plan);

  /// What the user chose.
  [[nodiscard]] ImportColumns columns() const;
  /// The table of rows, for a label to refer to.
  [[nodiscard]] QTableWidget* table() const { return table_; }
  /// Puts the choices and then the table behind `before` in the tab order. To be repeated after show(), which
  /// makes new choices.
  void setTabOrderBehind(QWidget* before);

  [[nodiscard]] QSize sizeHint() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void columnsChanged();

 private:
  /// Keeps the choices above their columns as the table is scrolled and its columns are resized.
  void placeChoices();
  void scrollToChoice(const QComboBox& choice);
  void addChoice(int column, ImportField field);
  void takeChoice(int column);
  void fillRows(const Sheet& sheet, const ImportPlan& plan);

  QWidget* strip_;  ///< the choices; in cells of the table, assistive tools would not find them
  QTableWidget* table_;
  std::vector<QComboBox*> choices_;
  ImportColumns columns_;
  std::vector<int> rows_;  ///< of the sheet
};

}  // namespace parlexo
