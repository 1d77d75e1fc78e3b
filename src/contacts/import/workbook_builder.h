// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>

#include "base/call_runner.h"
#include "contacts/import/import_limits.h"
#include "contacts/import/workbook_readers.h"

namespace parlexo {

/// Collects the cells of a workbook in whatever order a reader tells them, within limits, and makes sheets
/// of them. Once a limit is passed or the reading is cancelled it takes nothing more.
class WorkbookBuilder {
 public:
  WorkbookBuilder(const ImportLimits& limits, const CancelFlag& cancel) : limits_(limits), cancel_(cancel) {}

  /// Begins a further sheet and returns its number. Too many close the builder.
  std::size_t addSheet(const QString& name, bool isHidden = false);
  /// Records that the sheet has formulas whose results can't be read.
  void setLacksFormulas(std::size_t sheet);
  /// A text that cells refer to by the returned number.
  std::size_t addText(const QString& text);

  /// Sets a cell, rows and columns counted from 0; a text number that was never given out is passed over.
  void setText(std::size_t sheet, int row, int column, std::size_t textNumber);
  void setCell(std::size_t sheet, int row, int column, const QString& text);

  /// Whether more cells are taken.
  [[nodiscard]] bool isOpen() const { return problem_.isEmpty() && !cancel_.isRaised(); }
  [[nodiscard]] const QString& problem() const { return problem_; }

  /// The sheets that have a cell; none when they turn out too large.
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

  [[nodiscard]] bool takes(int row, int column);
  void countCell();
  [[nodiscard]] Sheet tableOf(std::vector<Cell>& cells);

  const ImportLimits& limits_;
  const CancelFlag& cancel_;
  std::vector<RawSheet> sheets_;
  std::vector<QString> texts_;
  qsizetype textLength_ = 0;
  qsizetype cellCount_ = 0;
  QString problem_;
};

}  // namespace parlexo
