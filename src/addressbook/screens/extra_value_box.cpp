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
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ExtraValueBox::updateChosen);
}

void ExtraValueBox::search(const QString& typed) {
  QStringList matches;
  for (const int index : search_.find(typed)) matches << values_[index];
  if (matches == shown_.stringList()) return;
  // Resetting the model clears the selection without a signal, so chosen_ stays valid.
  shown_.setStringList(matches);
  selectChosen();
}

void ExtraValueBox::selectChosen() {
  if (chosen_.isEmpty()) return;
  // Adjacent rows form one range, as selecting thousands of single rows would be slow.
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

void ExtraValueBox::updateChosen(const QItemSelection& selected, const QItemSelection& deselected) {
  for (const QModelIndex& index : selected.indexes()) chosen_.insert(index.data().toString());
  for (const QModelIndex& index : deselected.indexes()) chosen_.remove(index.data().toString());
  Q_EMIT chosenChanged();
}

}  // namespace parlexo
