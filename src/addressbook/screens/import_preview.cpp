#include "addressbook/screens/import_preview.h"

#include <algorithm>

#include <QComboBox>
#include <QHeaderView>
#include <QSignalBlocker>

#include "addressbook/core/contact_import.h"
#include "addressbook/core/import_source.h"
#include "ui/list_style.h"
#include "ui/look.h"

namespace parlexo {

namespace {

// A file may have a thousand columns, of which a contact can take fourteen.
constexpr int shownColumns = 60;
constexpr int choiceRow = 0;
constexpr int resultColumn = 0;
constexpr int firstFileColumn = 1;
constexpr int narrowest = 120;
constexpr int widest = 260;
constexpr int resultWidth = 370;  // the commonest reasons are read without the tooltip
constexpr qsizetype longestShown = 200;

QTableWidgetItem* cellItem(const QString& text) {
  auto* item = new QTableWidgetItem(text.left(longestShown).simplified());
  item->setToolTip(text.left(longestShown));
  return item;
}

QString headingOf(const Sheet& sheet, int column, bool hasHeadings) {
  const QString heading =
      hasHeadings ? sheet.cell(0, column).toString().simplified().left(longestShown) : QString();
  return heading.isEmpty() ? QStringLiteral("Column %1").arg(column + 1) : heading;
}

}  // namespace

ImportPreview::ImportPreview(QWidget* parent) : QTableWidget(parent) {
  styleList(*this);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::NoSelection);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setWordWrap(false);
  verticalHeader()->hide();
}

void ImportPreview::show(const Sheet& sheet, const ImportPlan& plan) {
  clear();
  choices_.clear();
  rows_.clear();
  columns_ = plan.columns;
  const int columns = std::min(sheet.columnCount(), shownColumns);
  for (int row = plan.hasHeadings ? 1 : 0;
       row < sheet.rowCount() && rows_.size() < static_cast<std::size_t>(ImportSource::previewRows); ++row)
    if (!sheet.isBlank(row)) rows_.push_back(row);
  setColumnCount(columns == 0 ? 0 : firstFileColumn + columns);
  setRowCount(columns == 0 ? 0 : 1 + static_cast<int>(rows_.size()));
  QStringList headings = {QStringLiteral("Contact")};
  for (int column = 0; column < columns; ++column) headings << headingOf(sheet, column, plan.hasHeadings);
  setHorizontalHeaderLabels(headings);
  for (int column = 0; column < columns; ++column)
    addChoice(column, plan.columns[static_cast<std::size_t>(column)]);
  fillRows(sheet, plan);
}

void ImportPreview::addChoice(int column, ImportField field) {
  auto* choice = new QComboBox(this);
  choice->setObjectName(QStringLiteral("column%1Choice").arg(column + 1));
  choice->setAccessibleName(QStringLiteral("What column %1 becomes").arg(column + 1));
  for (const ImportField offered : importFields())
    choice->addItem(fieldLabel(offered), static_cast<int>(offered));
  choice->setCurrentIndex(choice->findData(static_cast<int>(field)));
  choice->setMaxVisibleItems(choice->count());
  connect(choice, &QComboBox::currentIndexChanged, this, [this, column] { takeChoice(column); });
  setCellWidget(choiceRow, firstFileColumn + column, choice);
  choices_.push_back(choice);
}

// A field can come from one column only: the column that had it before gives it up.
void ImportPreview::takeChoice(int column) {
  const auto field =
      static_cast<ImportField>(choices_[static_cast<std::size_t>(column)]->currentData().toInt());
  for (std::size_t other = 0; other < columns_.size(); ++other) {
    if (other == static_cast<std::size_t>(column) || columns_[other] != field) continue;
    columns_[other] = ImportField::Nothing;
    if (other >= choices_.size()) continue;
    const QSignalBlocker blocker(choices_[other]);
    choices_[other]->setCurrentIndex(0);
  }
  columns_[static_cast<std::size_t>(column)] = field;
  Q_EMIT columnsChanged();
}

ImportColumns ImportPreview::columns() const {
  return columns_;
}

void ImportPreview::fillRows(const Sheet& sheet, const ImportPlan& plan) {
  for (std::size_t i = 0; i < rows_.size(); ++i)
    for (std::size_t column = 0; column < choices_.size(); ++column)
      setItem(static_cast<int>(i) + 1, firstFileColumn + static_cast<int>(column),
              cellItem(sheet.cell(rows_[i], static_cast<int>(column)).toString()));
  judge(sheet, plan);
  resizeColumnsToContents();
  for (int column = 0; column < columnCount(); ++column)
    setColumnWidth(column, std::clamp(columnWidth(column), narrowest, widest));
  if (columnCount() > 0) setColumnWidth(resultColumn, resultWidth);
  if (rowCount() > 0) setRowHeight(choiceRow, choices_.front()->sizeHint().height() + 2);
}

void ImportPreview::judge(const Sheet& sheet, const ImportPlan& plan) {
  if (!planProblem(plan).isEmpty()) {
    for (std::size_t i = 0; i < rows_.size(); ++i)
      setItem(static_cast<int>(i) + 1, resultColumn, cellItem({}));
    return;
  }
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const ImportRow row = readImportRow(sheet, rows_[i], plan);
    const QString number = row.contact.phone.isEmpty() ? row.contact.fax : row.contact.phone;
    const bool isRefused = !row.refusal.isEmpty();
    auto* item = cellItem(isRefused ? QStringLiteral("Refused: ") + row.refusal
                                    : QStringLiteral("%1 [%2]").arg(row.contact.name, number));
    if (isRefused) item->setForeground(look::problemText);
    setItem(static_cast<int>(i) + 1, resultColumn, item);
  }
}

QSize ImportPreview::sizeHint() const {
  return dialogUnits(*this, 420, 150);
}

}  // namespace parlexo
