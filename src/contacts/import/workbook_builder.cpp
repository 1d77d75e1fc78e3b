// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/workbook_builder.h"

#include <algorithm>
#include <utility>

namespace parlexo {

namespace {

QString textLimitProblem() {
  return WorkbookBuilder::tr("The file has too much text.");
}

QString cellLimitProblem(const ImportLimits& limits) {
  return WorkbookBuilder::tr("The file has more than %L1 cells.").arg(limits.cells);
}

}  // namespace

std::size_t WorkbookBuilder::addSheet(const QString& name, bool isHidden) {
  if (sheets_.size() >= static_cast<std::size_t>(limits_.sheets))
    problem_ = tr("The file has more than %L1 sheets.").arg(limits_.sheets);
  else
    sheets_.push_back({.name = name, .isHidden = isHidden, .cells = {}});
  return sheets_.size() - 1;
}

void WorkbookBuilder::setLacksFormulas(std::size_t sheet) {
  if (sheet < sheets_.size()) sheets_[sheet].lacksFormulas = true;
}

std::size_t WorkbookBuilder::addText(const QString& text) {
  if (!isOpen()) return texts_.size();
  textLength_ += text.size();
  if (textLength_ > limits_.textLength || text.size() > limits_.cellLength)
    problem_ = textLimitProblem();
  else if (static_cast<qsizetype>(texts_.size()) >= limits_.cells)
    problem_ = cellLimitProblem(limits_);
  texts_.push_back(text);
  return texts_.size() - 1;
}

bool WorkbookBuilder::acceptsCell(int row, int column) {
  if (!isOpen() || row < 0 || column < 0) return false;
  if (column >= limits_.columns)
    problem_ = tr("The file has more than %L1 columns.").arg(limits_.columns);
  else if (row >= limits_.rows)
    problem_ = tr("The file has more than %L1 rows.").arg(limits_.rows);
  else
    countCell();
  return problem_.isEmpty();
}

void WorkbookBuilder::countCell() {
  if (++cellCount_ > limits_.cells) problem_ = cellLimitProblem(limits_);
}

void WorkbookBuilder::setText(std::size_t sheet, int row, int column, std::size_t textNumber) {
  if (textNumber >= texts_.size() || sheet >= sheets_.size() || !acceptsCell(row, column)) return;
  sheets_[sheet].cells.push_back({row, column, static_cast<quint32>(textNumber)});
}

void WorkbookBuilder::setCell(std::size_t sheet, int row, int column, const QString& text) {
  if (!text.isEmpty()) setText(sheet, row, column, addText(text));
}

NamedSheets WorkbookBuilder::build() {
  NamedSheets built;
  qsizetype length = 0;
  for (RawSheet& raw : sheets_) {
    if (raw.cells.empty()) continue;
    for (const Cell& cell : raw.cells) length += texts_[cell.text].size();
    // A few texts may be used by many cells.
    if (length > limits_.textLength) problem_ = textLimitProblem();
    if (!isOpen()) return {};
    built.push_back({.name = raw.name,
                     .sheet = buildSheet(raw.cells),
                     .isHidden = raw.isHidden,
                     .lacksFormulas = raw.lacksFormulas});
  }
  return isOpen() ? std::move(built) : NamedSheets();
}

Sheet WorkbookBuilder::buildSheet(std::vector<Cell>& cells) {
  const auto place = [](const Cell& cell) { return std::pair(cell.row, cell.column); };
  std::stable_sort(cells.begin(), cells.end(),
                   [&](const Cell& left, const Cell& right) { return place(left) < place(right); });
  Sheet sheet;
  for (std::size_t i = 0; i < cells.size() && isOpen(); ++i) {
    // The last one of duplicate cells counts.
    if (i + 1 < cells.size() && place(cells[i]) == place(cells[i + 1])) continue;
    while (sheet.rowCount() < cells[i].row) sheet.endRow();
    // A gap needs as much memory as a cell: one cell at the end of each row makes a full table.
    for (; sheet.openRowCells() < cells[i].column; sheet.endCell()) countCell();
    sheet.append(texts_[cells[i].text]);
    sheet.endCell();
  }
  if (!cells.empty()) sheet.endRow();
  return sheet;
}

}  // namespace parlexo
