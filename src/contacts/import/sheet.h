// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>
#include <QStringView>
#include <QtGlobal>

namespace parlexo {

/// The maximum size of an imported file. A larger one is not a list of contacts, or was made to exhaust the
/// memory.
struct ImportLimits {
  qint64 fileBytes = 64LL << 20;
  qint64 unpackedBytes = 256LL << 20;  ///< of all parts of a packed workbook together
  int rows = 1'048'576;                ///< the limit of spreadsheet programs
  int columns = 1000;
  int sheets = 256;
  qsizetype cellLength = 32'767;      ///< characters; the limit of spreadsheet programs
  qsizetype textLength = 64LL << 20;  ///< characters of all cells together
  qsizetype cells = 12LL << 20;       ///< of all sheets together
};

/// A table of texts, filled cell by cell and row by row. All texts are stored in one string, so a hundred
/// thousand rows need little more memory than their characters.
class Sheet {
 public:
  /// Appends to the current cell, which endCell() ends.
  void append(QChar character) { text_.append(character); }
  void append(QStringView text) { text_.append(text); }
  void endCell();
  void endRow();

  [[nodiscard]] int rowCount() const { return static_cast<int>(rowEnds_.size()); }
  /// The number of cells of the longest row.
  [[nodiscard]] int columnCount() const { return columnCount_; }
  /// Empty if the row is shorter. Valid until the sheet changes. `row` and `column` must not be negative, and
  /// `row` must be less than rowCount().
  [[nodiscard]] QStringView cell(int row, int column) const;
  [[nodiscard]] int cellCount(int row) const {
    return static_cast<int>(rowEnds_[static_cast<std::size_t>(row)] - firstCell(row));
  }
  /// Returns whether all cells of the row are empty or contain only white space.
  [[nodiscard]] bool isBlank(int row) const;

  /// Lengths of the current cell, in characters, of the current row, in cells, and of all texts.
  [[nodiscard]] qsizetype openCellLength() const { return text_.size() - lastCellEnd(); }
  [[nodiscard]] int openRowCells() const {
    return static_cast<int>(cellEnds_.size() - firstCell(rowCount()));
  }
  [[nodiscard]] qsizetype textLength() const { return text_.size(); }

 private:
  [[nodiscard]] std::size_t firstCell(int row) const {
    return row == 0 ? 0 : rowEnds_[static_cast<std::size_t>(row) - 1];
  }
  [[nodiscard]] qsizetype lastCellEnd() const { return cellEnds_.empty() ? 0 : cellEnds_.back(); }

  QString text_;
  std::vector<quint32> cellEnds_;  ///< ends of the cells in text_
  std::vector<quint32> rowEnds_;   ///< ends of the rows in cellEnds_
  int columnCount_ = 0;
};

}  // namespace parlexo
