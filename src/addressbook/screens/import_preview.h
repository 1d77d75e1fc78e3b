#pragma once

#include <vector>

#include <QTableWidget>

#include "addressbook/core/import_columns.h"
#include "addressbook/core/import_row.h"

class QComboBox;

namespace parlexo {

/// The first rows of an imported file as they will be read. Above each column the user chooses what the
/// column becomes; in front of each row stands the contact it will be, or why it will be refused.
class ImportPreview final : public QTableWidget {
  Q_OBJECT

 public:
  explicit ImportPreview(QWidget* parent = nullptr);

  /// Shows the sheet's first rows, with `columns` chosen above them.
  void show(const Sheet& sheet, const ImportPlan& plan);
  /// Reads the rows anew by another plan for the same columns.
  void judge(const Sheet& sheet, const ImportPlan& plan);

  /// What the user chose.
  [[nodiscard]] ImportColumns columns() const;

  [[nodiscard]] QSize sizeHint() const override;

 Q_SIGNALS:
  void columnsChanged();

 private:
  void addChoice(int column, ImportField field);
  void takeChoice(int column);
  void fillRows(const Sheet& sheet, const ImportPlan& plan);

  std::vector<QComboBox*> choices_;
  ImportColumns columns_;
  std::vector<int> rows_;  ///< of the sheet
};

}  // namespace parlexo
