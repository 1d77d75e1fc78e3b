// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/contact_selection.h"

#include <algorithm>
#include <utility>

#include "contacts/address_book.h"

namespace parlexo {

namespace {

bool isYes(const QString& flag) {
  return flag.compare(QLatin1String("Y"), Qt::CaseInsensitive) == 0;
}

}  // namespace

bool isEligible(const ContactRecord& contact, SelectionMode mode) {
  switch (mode) {
    case SelectionMode::All:
      return true;
    case SelectionMode::Sms:
      return isYes(contact.supportsSms);
    case SelectionMode::Media:
      return isYes(contact.supportsMedia);
    case SelectionMode::Fax:
      return !contact.fax.isEmpty();
    case SelectionMode::Phone:
      return !contact.phone.isEmpty();
  }
  Q_UNREACHABLE();
}

ContactSelection::ContactSelection(Contacts contacts) : contacts_(std::move(contacts)) {
  sortByName(contacts_, [](const ContactRecord* contact) { return contact->name; });
  const auto sameName = [](const ContactRecord* a, const ContactRecord* b) { return a->name == b->name; };
  contacts_.erase(std::unique(contacts_.begin(), contacts_.end(), sameName), contacts_.end());
}

ContactSelection ContactSelection::fromSorted(Contacts contacts) {
  ContactSelection selection;
  selection.contacts_ = std::move(contacts);
  return selection;
}

bool ContactSelection::contains(const QString& name) const {
  const auto before = [](const ContactRecord* contact, const NameKey& key) {
    return NameKey(contact->name) < key;
  };
  const auto found = std::lower_bound(contacts_.begin(), contacts_.end(), NameKey(name), before);
  return found != contacts_.end() && (*found)->name == name;
}

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
