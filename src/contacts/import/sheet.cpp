// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/sheet.h"

#include <algorithm>

namespace parlexo {

void Sheet::endCell() {
  cellEnds_.push_back(static_cast<quint32>(text_.size()));
}

void Sheet::endRow() {
  columnCount_ = std::max(columnCount_, openRowCells());
  rowEnds_.push_back(static_cast<quint32>(cellEnds_.size()));
}

QStringView Sheet::cell(int row, int column) const {
  const std::size_t index = firstCell(row) + static_cast<std::size_t>(column);
  if (index >= rowEnds_[static_cast<std::size_t>(row)]) return {};
  const qsizetype begin = index == 0 ? 0 : cellEnds_[index - 1];
  return QStringView(text_).sliced(begin, cellEnds_[index] - begin);
}

bool Sheet::isBlank(int row) const {
  const std::size_t first = firstCell(row);
  const std::size_t end = rowEnds_[static_cast<std::size_t>(row)];
  if (first == end) return true;
  const qsizetype begin = first == 0 ? 0 : cellEnds_[first - 1];
  return QStringView(text_).sliced(begin, cellEnds_[end - 1] - begin).trimmed().isEmpty();
}

}  // namespace parlexo
