// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>
#include <QStringView>

namespace parlexo {

/// A table of texts, filled cell by cell and row by row. All texts lie in one string, so that a hundred
/// thousand rows take little more room than their characters.
class Sheet {
 public:
  /// Adds to the text of the cell that endCell() will close.
  void append(QChar character) { text_.append(character); }
  void append(QStringView text) { text_.append(text); }
  void endCell();
  void endRow();

  [[nodiscard]] int rowCount() const { return static_cast<int>(rowEnds_.size()); }
  /// The cells of the longest row.
  [[nodiscard]] int columnCount() const { return columnCount_; }
  /// Empty where the row is shorter. Valid until the sheet changes. `row` and `column` must not be negative,
  /// `row` below rowCount().
  [[nodiscard]] QStringView cell(int row, int column) const;
  [[nodiscard]] int cellCount(int row) const {
    return static_cast<int>(rowEnds_[static_cast<std::size_t>(row)] - firstCell(row));
  }
  /// Whether no cell of the row has a text other than blanks.
  [[nodiscard]] bool isBlank(int row) const;

  /// Of the cell and the row that are being filled, and of all.
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
