// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/list_style.h"

#include <algorithm>

#include <QHeaderView>
#include <QListView>
#include <QPalette>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTreeView>

#include "ui/look.h"

namespace parlexo {

namespace {

constexpr int rowPadding = 6;
constexpr int cellMargins = 12;

/// Adds padding to the rows of lists and trees. In a table the vertical header sets the row height.
class PaddedRows final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, rowPadding);
  }
};

void styleHeader(QHeaderView& header) {
  header.setHighlightSections(false);
  header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  header.setSectionsMovable(false);
}

void styleTable(QTableView& table) {
  table.setShowGrid(false);
  table.setTabKeyNavigation(false);
  table.setWordWrap(false);
  table.setCornerButtonEnabled(false);
  table.verticalHeader()->hide();
  table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table.verticalHeader()->setMinimumSectionSize(1);
  table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + rowPadding);
  styleHeader(*table.horizontalHeader());
}

/// Uses the same selection colours whether or not the list has the focus.
void setSelectionColors(QPalette& palette) {
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Highlight, look::selection);
    palette.setColor(group, QPalette::HighlightedText, look::selectedText);
  }
}

}  // namespace

void styleList(QAbstractItemView& view) {
  QPalette palette = view.palette();
  palette.setColor(QPalette::Base, look::listBackground);
  setSelectionColors(palette);
  view.setPalette(palette);
  view.setAlternatingRowColors(false);
  view.setSelectionBehavior(QAbstractItemView::SelectRows);
  if (auto* table = qobject_cast<QTableView*>(&view)) {
    styleTable(*table);
    return;
  }
  view.setItemDelegate(new PaddedRows(&view));
  if (auto* tree = qobject_cast<QTreeView*>(&view)) styleHeader(*tree->header());
}

int fittingColumnWidth(const QWidget& list, int usual, const QString& widest) {
  return std::max(usual, list.fontMetrics().horizontalAdvance(widest) + cellMargins);
}

}  // namespace parlexo
