#include "addressbook/screens/group_list_model.h"

#include "contacts/group_file.h"

namespace parlexo {

GroupListModel::GroupListModel(SelectionLists& lists, QObject* parent)
    : CheckListModel({QStringLiteral("Select"), QStringLiteral("Name")}, parent), lists_(lists) {}

int GroupListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : lists_.groupCount();
}

QString GroupListModel::cell(int row, int column) const {
  return column == NameColumn ? lists_.group(row).name() : QString();
}

bool GroupListModel::isTicked(int row) const {
  return lists_.isGroupTicked(row);
}

void GroupListModel::setTicked(int row, bool ticked) {
  Q_EMIT contactTicksChanged(lists_.setGroupTicked(row, ticked));
}

}  // namespace parlexo
