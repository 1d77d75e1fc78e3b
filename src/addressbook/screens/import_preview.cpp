// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/import_preview.h"

#include <algorithm>

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include "addressbook/core/contact_import.h"
#include "addressbook/core/import_source.h"
#include "ui/list_style.h"
#include "ui/look.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// A file may have thousands of columns, but a contact has only fourteen fields.
constexpr int maxColumns = 60;
constexpr int resultColumn = 0;
constexpr int firstFileColumn = 1;
constexpr int minColumnWidth = 120;  // pixels
constexpr int maxColumnWidth = 260;
constexpr int resultWidth = 370;  // the most common reasons fit without the tooltip
constexpr qsizetype maxCellLength = 200;

QTableWidgetItem* cellItem(const QString& text) {
  auto* item = new QTableWidgetItem(text.left(maxCellLength).simplified());
  item->setToolTip(text.left(maxCellLength));
  return item;
}

/// The contact resulting from a row, or why the row is refused. Red if data is lost.
QTableWidgetItem* resultItem(const ImportRow& row) {
  const QString number = row.contact.phone.isEmpty() ? row.contact.fax : row.contact.phone;
  const QString contact = u"%1 [%2]"_s.arg(row.contact.name, number);
  auto* item = cellItem(!row.refusal.isEmpty() ? ImportPreview::tr("Refused: %1").arg(row.refusal)
                        : row.remark.isEmpty() ? contact
                                               : u"%1. %2"_s.arg(contact, row.remark));
  if (!row.refusal.isEmpty() || !row.remark.isEmpty()) item->setForeground(look::problemText);
  return item;
}

QString columnHeading(const Sheet& sheet, int column, std::optional<int> headingRow) {
  const QString heading =
      headingRow ? sheet.cell(*headingRow, column).toString().simplified().left(maxCellLength) : QString();
  return heading.isEmpty() ? ImportPreview::tr("Column %1").arg(column + 1) : heading;
}

}  // namespace

ImportPreview::ImportPreview(QWidget* parent)
    : QWidget(parent), strip_(new QWidget(this)), table_(new QTableWidget(this)) {
  styleList(*table_);
  table_->setObjectName(u"preview"_s);
  table_->setAccessibleName(tr("First rows and column assignment:"));
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionMode(QAbstractItemView::NoSelection);
  table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->setWordWrap(false);
  table_->verticalHeader()->hide();
  strip_->hide();
  strip_->setFixedHeight(QComboBox().sizeHint().height() + 2);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(0);
  layout->addWidget(strip_);
  layout->addWidget(table_, 1);
  connect(table_->horizontalScrollBar(), &QScrollBar::valueChanged, this, &ImportPreview::placeChoices);
  connect(table_->horizontalHeader(), &QHeaderView::sectionResized, this, &ImportPreview::placeChoices);
  connect(table_->horizontalHeader(), &QHeaderView::geometriesChanged, this, &ImportPreview::placeChoices);
}

void ImportPreview::show(const Sheet& sheet, const ImportPlan& plan) {
  table_->clear();
  qDeleteAll(choices_);
  choices_.clear();
  rows_.clear();
  columns_ = plan.columns;
  const int columns = std::min(sheet.columnCount(), maxColumns);
  for (int row = plan.firstRow();
       row < sheet.rowCount() && rows_.size() < static_cast<std::size_t>(ImportSource::previewRows); ++row)
    if (!sheet.isBlank(row)) rows_.push_back(row);
  table_->setColumnCount(columns == 0 ? 0 : firstFileColumn + columns);
  table_->setRowCount(columns == 0 ? 0 : static_cast<int>(rows_.size()));
  QStringList headings = {tr("Contact")};
  for (int column = 0; column < columns; ++column) headings << columnHeading(sheet, column, plan.headingRow);
  table_->setHorizontalHeaderLabels(headings);
  for (int column = 0; column < columns; ++column)
    addChoice(column, plan.columns[static_cast<std::size_t>(column)]);
  strip_->setVisible(!choices_.empty());
  fillRows(sheet, plan);
  placeChoices();
}

void ImportPreview::addChoice(int column, ImportField field) {
  auto* choice = new QComboBox(strip_);
  choice->setObjectName(u"column%1Choice"_s.arg(column + 1));
  const QString label = tr("Field for column %1").arg(column + 1);
  choice->setAccessibleName(label);
  choice->setAccessibleDescription(label);  // on Unix, Qt reports a combo box's value as its name
  for (const ImportField offered : importFields())
    choice->addItem(fieldLabel(offered), static_cast<int>(offered));
  choice->setCurrentIndex(choice->findData(static_cast<int>(field)));
  choice->setMaxVisibleItems(choice->count());
  choice->installEventFilter(this);
  connect(choice, &QComboBox::currentIndexChanged, this, [this, column] { applyChoice(column); });
  choices_.push_back(choice);
  choice->show();
}

void ImportPreview::placeChoices() {
  const QHeaderView& header = *table_->horizontalHeader();
  const int left = table_->viewport()->mapTo(this, QPoint(0, 0)).x();
  for (std::size_t i = 0; i < choices_.size(); ++i) {
    const int column = firstFileColumn + static_cast<int>(i);
    choices_[i]->setGeometry(left + header.sectionViewportPosition(column), 0, header.sectionSize(column),
                             strip_->height() - 2);
  }
}

bool ImportPreview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn)
    if (const auto* choice = qobject_cast<QComboBox*>(watched)) scrollToChoice(*choice);
  return QWidget::eventFilter(watched, event);
}

void ImportPreview::scrollToChoice(const QComboBox& choice) {
  QScrollBar& bar = *table_->horizontalScrollBar();
  const int beyond = choice.geometry().right() - strip_->width();
  if (beyond > 0) bar.setValue(bar.value() + beyond);
  if (choice.x() < 0) bar.setValue(bar.value() + choice.x());
}

void ImportPreview::setTabOrderAfter(QWidget* previous) {
  for (QComboBox* choice : choices_) {
    setTabOrder(previous, choice);
    previous = choice;
  }
  setTabOrder(previous, table_);
}

// A field can be assigned to only one column, so the previous one is reset.
void ImportPreview::applyChoice(int column) {
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
      table_->setItem(static_cast<int>(i), firstFileColumn + static_cast<int>(column),
                      cellItem(sheet.cell(rows_[i], static_cast<int>(column)).toString()));
  updateResults(sheet, plan);
  table_->resizeColumnsToContents();
  for (int column = 0; column < table_->columnCount(); ++column)
    table_->setColumnWidth(column, std::clamp(table_->columnWidth(column), minColumnWidth, maxColumnWidth));
  if (table_->columnCount() > 0) table_->setColumnWidth(resultColumn, resultWidth);
}

void ImportPreview::updateResults(const Sheet& sheet, const ImportPlan& plan) {
  const bool isValid = planProblem(plan).isEmpty();
  for (std::size_t i = 0; i < rows_.size(); ++i)
    table_->setItem(static_cast<int>(i), resultColumn,
                    isValid ? resultItem(readImportRow(sheet, rows_[i], plan)) : cellItem({}));
}

QSize ImportPreview::sizeHint() const {
  return dialogUnits(*this, 420, 150);
}

}  // namespace parlexo
