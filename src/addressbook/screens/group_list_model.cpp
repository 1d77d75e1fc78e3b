// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/group_list_model.h"

#include "addressbook/core/contact_selection.h"
#include "contacts/group_file.h"

namespace parlexo {

using namespace Qt::StringLiterals;

GroupListModel::GroupListModel(SelectionLists& lists, QObject* parent)
    : CheckListModel({u"Select"_s, u"Name"_s}, lists.groupCount(), parent), lists_(lists) {}

QString GroupListModel::entryCell(int entry, int column) const {
  return column == NameColumn ? shownName(lists_.group(entry).name()) : QString();
}

bool GroupListModel::isEntryTicked(int entry) const {
  return lists_.isGroupTicked(entry);
}

void GroupListModel::setEntryTicked(int entry, bool ticked) {
  Q_EMIT contactTicksChanged(lists_.setGroupTicked(entry, ticked));
}

void GroupListModel::addSearchedFields(int entry, TextSearch& search) const {
  search.addField(shownName(lists_.group(entry).name()));
}

}  // namespace parlexo
