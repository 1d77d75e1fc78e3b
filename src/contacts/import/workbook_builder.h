// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QCoreApplication>
#include <QString>

#include "base/call_runner.h"
#include "contacts/import/sheet.h"
#include "contacts/import/workbook_readers.h"

namespace parlexo {

/// Collects the cells of a workbook in any order, within limits, and builds sheets from them. Ignores further
/// input once a limit is exceeded or reading is cancelled.
class WorkbookBuilder {
  Q_DECLARE_TR_FUNCTIONS(WorkbookBuilder)

 public:
  WorkbookBuilder(const ImportLimits& limits, const CancelFlag& cancel) : limits_(limits), cancel_(cancel) {}

  /// Adds a sheet and returns its number.
  std::size_t addSheet(const QString& name, bool isHidden = false);
  /// Marks the sheet as containing formulas whose results can't be read.
  void setLacksFormulas(std::size_t sheet);
  /// Adds a text and returns its number for setText().
  std::size_t addText(const QString& text);

  /// Sets a cell; rows and columns are counted from 0. Ignores unknown text numbers.
  void setText(std::size_t sheet, int row, int column, std::size_t textNumber);
  void setCell(std::size_t sheet, int row, int column, const QString& text);

  /// Whether more cells are accepted.
  [[nodiscard]] bool isOpen() const { return problem_.isEmpty() && !cancel_.isRaised(); }
  [[nodiscard]] const QString& problem() const { return problem_; }

  /// Returns the non-empty sheets, or none if a limit is exceeded.
  [[nodiscard]] NamedSheets build();

 private:
  struct Cell {
    int row;
    int column;
    quint32 text;
  };
  struct RawSheet {
    QString name;
    bool isHidden = false;
    bool lacksFormulas = false;
    std::vector<Cell> cells;
  };

  [[nodiscard]] bool acceptsCell(int row, int column);
  void countCell();
  [[nodiscard]] Sheet buildSheet(std::vector<Cell>& cells);

  const ImportLimits& limits_;
  const CancelFlag& cancel_;
  std::vector<RawSheet> sheets_;
  std::vector<QString> texts_;
  qsizetype textLength_ = 0;
  qsizetype cellCount_ = 0;
  QString problem_;
};

}  // namespace parlexo
