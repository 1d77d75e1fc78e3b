// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/contact_list_model.h"

#include "addressbook/core/contact_selection.h"
#include "contacts/group_file.h"

namespace parlexo {

ContactListModel::ContactListModel(SelectionLists& lists, SelectionMode mode, QObject* parent)
    : CheckListModel({tr("Select"), tr("Name"), tr("Phone")}, lists.contactCount(), parent),
      lists_(lists),
      showsFax_(mode == SelectionMode::Fax) {}

QString ContactListModel::entryCell(int entry, int column) const {
  const ContactRecord& contact = lists_.contact(entry);
  if (column == NameColumn) return shownName(contact.name);
  if (column == NumberColumn) return showsFax_ ? contact.fax : contact.phone;
  return {};
}

bool ContactListModel::isEntryTicked(int entry) const {
  return lists_.isContactTicked(entry);
}

void ContactListModel::setEntryTicked(int entry, bool ticked) {
  lists_.setContactTicked(entry, ticked);
}

void ContactListModel::addSearchedFields(int entry, TextSearch& search) const {
  const ContactRecord& contact = lists_.contact(entry);
  search.addField(shownName(contact.name));
  search.addField(contact.phone);
  if (showsFax_) search.addField(contact.fax);
  for (const QString& extra : contact.extra) search.addField(extra);
}

GroupListModel::GroupListModel(SelectionLists& lists, QObject* parent)
    : CheckListModel({tr("Select"), tr("Name")}, lists.groupCount(), parent), lists_(lists) {}

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
