// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/contact_list_model.h"

#include "addressbook/core/contact_selection.h"

namespace parlexo {

using namespace Qt::StringLiterals;

ContactListModel::ContactListModel(SelectionLists& lists, SelectionMode mode, QObject* parent)
    : CheckListModel({u"Select"_s, u"Name"_s, u"Phone"_s}, lists.contactCount(), parent),
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

}  // namespace parlexo
