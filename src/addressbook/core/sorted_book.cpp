// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/sorted_book.h"

#include "addressbook/core/name_order.h"
#include "contacts/address_book.h"

namespace parlexo {

ContactSelection::Contacts sortedContacts(const AddressBook& book, SelectionMode mode) {
  ContactSelection::Contacts contacts;
  contacts.reserve(book.contacts().size());
  for (const auto& [name, contact] : book.contacts()) {
    if (isEligible(contact, mode)) contacts.push_back(&contact);
  }
  sortByName(contacts, [](const ContactRecord* contact) { return contact->name; });
  return contacts;
}

std::vector<const GroupFile*> sortedGroups(const AddressBook& book) {
  std::vector<const GroupFile*> groups;
  for (const auto& [name, group] : book.groups()) groups.push_back(&group);
  sortByName(groups, [](const GroupFile* group) { return group->name(); });
  return groups;
}

}  // namespace parlexo
