// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/record_table.h"

#include <algorithm>
#include <utility>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QPainter>
#include <QShortcut>

#include "base/settings.h"
#include "ui/list_style.h"
#include "ui/look.h"
#include "ui/sorted_rows.h"

namespace parlexo {
namespace {

constexpr int headingRow = -1;
constexpr QColor gridLine(214, 230, 242);

// Tabs and line breaks separate cells and rows on the clipboard.
QString withoutSeparators(QString cell) {
  for (QChar& character : cell)
    if (character == u'\t' || character == u'\r' || character == u'\n') character = u' ';
  return cell;
}

}  // namespace

RecordTable::RecordTable(QAbstractItemModel& records, const Form& form, Settings& settings, QWidget* parent)
    : QTreeView(parent), rows_(new SortedRows(records, this)), settings_(settings), hasGrid_(form.hasGrid) {
  setObjectName(form.name);
  setAccessibleName(form.label);
  setModel(rows_);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  styleList(*this);
  setUpSorting();
  setUpColumns(form.columns);
  auto* copy = new QShortcut(QKeySequence(QKeySequence::Copy), this);
  copy->setContext(Qt::WidgetShortcut);
  connect(copy, &QShortcut::activated, this, &RecordTable::copySelected);
}

std::vector<int> RecordTable::selectedRecords() const {
  QModelIndexList shown = selectionModel()->selectedRows();
  std::sort(shown.begin(), shown.end());
  std::vector<int> records;
  records.reserve(static_cast<std::size_t>(shown.size()));
  for (const QModelIndex& index : shown) records.push_back(rows_->mapToSource(index).row());
  return records;
}

void RecordTable::selectRecord(int row) {
  const QModelIndex shown = rows_->mapFromSource(rows_->sourceModel()->index(row, 0));
  setCurrentIndex(shown);
  scrollTo(shown);
  scrollsWhenShown_ = !isVisible();
}

void RecordTable::copySelected() const {
  QModelIndexList shown = selectionModel()->selectedRows();
  if (shown.isEmpty()) return;
  std::sort(shown.begin(), shown.end());
  QStringList lines;
  for (const QModelIndex& index : shown) {
    QStringList cells = rowTexts(index.row());
    for (QString& cell : cells) cell = withoutSeparators(cell);
    lines.append(cells.join(QChar(u'\t')));
  }
  QGuiApplication::clipboard()->setText(lines.join(QChar(u'\n')));
}

CsvWriter RecordTable::toCsv() const {
  CsvWriter csv(CsvCells::Harmless);
  for (int row = headingRow; row < rows_->rowCount(); ++row) csv.addRow(rowTexts(row));
  return csv;
}

void RecordTable::showEvent(QShowEvent* event) {
  QTreeView::showEvent(event);
  if (std::exchange(scrollsWhenShown_, false)) scrollTo(currentIndex());
}

void RecordTable::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  QTreeView::drawRow(painter, option, index);
  if (!hasGrid_) return;
  painter->setPen(gridLine);
  painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  for (int column = 0; column < header()->count(); ++column) {
    const int right = header()->sectionViewportPosition(column) + header()->sectionSize(column) - 1;
    painter->drawLine(right, option.rect.top(), right, option.rect.bottom());
  }
}

void RecordTable::setUpSorting() {
  // Otherwise setSortingEnabled() would sort by the first column.
  header()->setSortIndicator(-1, Qt::AscendingOrder);
  header()->setSortIndicatorClearable(true);
  setSortingEnabled(true);
  connect(header(), &QHeaderView::sortIndicatorChanged, this, [this] { scrollTo(currentIndex()); });
}

void RecordTable::setUpColumns(const std::vector<Column>& columns) {
  const QList<int> saved = settings_.columnWidths(objectName());
  int column = 0;
  for (const auto& [usual, widest] : columns) {
    const int fitting = std::max(fittingColumnWidth(*this, usual, widest), header()->sectionSizeHint(column));
    header()->resizeSection(column, saved.value(column) > 0 ? saved.value(column) : fitting);
    ++column;
  }
  connect(header(), &QHeaderView::sectionResized, this,
          [this](int resized, int /*before*/, int width) { saveColumnWidth(resized, width); });
}

// The last column is not saved, as it stretches with the window.
void RecordTable::saveColumnWidth(int column, int width) {
  if (header()->visualIndex(column) == header()->count() - 1) return;
  QList<int> widths = settings_.columnWidths(objectName());
  widths.resize(header()->count());
  widths[column] = width;
  settings_.setColumnWidths(objectName(), widths);
}

QStringList RecordTable::rowTexts(int shownRow) const {
  QStringList cells;
  for (int place = 0; place < header()->count(); ++place) {
    const int column = header()->logicalIndex(place);
    const QVariant cell = shownRow == headingRow ? rows_->headerData(column, Qt::Horizontal)
                                                 : rows_->index(shownRow, column).data();
    cells.append(cell.toString());
  }
  return cells;
}

}  // namespace parlexo
