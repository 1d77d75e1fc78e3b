// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/extra_value_box.h"

#include <QItemSelection>
#include <QItemSelectionModel>

#include "addressbook/core/selection_lists.h"
#include "ui/list_style.h"

namespace parlexo {

ExtraValueBox::ExtraValueBox(const QStringList& values, const QString& label, QWidget* parent)
    : QListView(parent), values_(values), shown_(values) {
  styleList(*this);
  setModel(&shown_);
  setAccessibleName(label);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::MultiSelection);
  setUniformItemSizes(true);
  for (const QString& value : values_) {
    search_.addField(value);
    search_.endText();
  }
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ExtraValueBox::takeChoice);
}

void ExtraValueBox::search(const QString& typed) {
  QStringList found;
  for (const int number : search_.find(typed)) found << values_[number];
  if (found == shown_.stringList()) return;
  // The new rows begin unselected without a word to anybody, so that what was chosen is still known.
  shown_.setStringList(found);
  showChoice();
}

void ExtraValueBox::showChoice() {
  if (chosen_.isEmpty()) return;
  // Neighbours make one range, so that thousands of chosen values are selected as quickly as one.
  QItemSelection selection;
  RowSpan run;
  for (int row = 0; row <= shown_.rowCount(); ++row) {
    if (row < shown_.rowCount() && chosen_.contains(shown_.index(row).data().toString())) {
      run.include(row);
    } else if (!run.isEmpty()) {
      selection.select(shown_.index(run.first), shown_.index(run.last));
      run = {};
    }
  }
  selectionModel()->select(selection, QItemSelectionModel::Select);
}

void ExtraValueBox::takeChoice(const QItemSelection& selected, const QItemSelection& deselected) {
  for (const QModelIndex& index : selected.indexes()) chosen_.insert(index.data().toString());
  for (const QModelIndex& index : deselected.indexes()) chosen_.remove(index.data().toString());
  Q_EMIT chosenChanged();
}

}  // namespace parlexo
