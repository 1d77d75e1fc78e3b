// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/contact_index.h"

#include <utility>

#include "addressbook/core/contact_selection.h"
#include "contacts/address_book.h"

namespace parlexo {

void ContactIndex::read() {
  clear();
  contacts_ = sortedContacts(book_, SelectionMode::All);
  places_.reserve(contacts_.size());
  for (std::size_t place = 0; place < contacts_.size(); ++place) {
    places_.emplace(contacts_[place], place);
    byInitial_[initialIndex(contacts_[place]->name)].push_back(contacts_[place]);
  }
}

void ContactIndex::clear() {
  contacts_.clear();
  places_.clear();
  byInitial_.fill({});
  search_ = {};
  isSearchReady_ = false;
}

std::size_t ContactIndex::initialIndex(const QString& name) {
  const char16_t initial = name.isEmpty() ? u'\0' : name.front().toUpper().unicode();
  return initial >= u'A' && initial <= u'Z' ? static_cast<std::size_t>(initial - u'A') : otherInitial;
}

ContactIndex::Contacts ContactIndex::contactsIn(const ContactFolder& folder) const {
  switch (folder.kind) {
    case ContactFolder::Kind::Root:
    case ContactFolder::Kind::AllContacts:
      return contacts_;
    case ContactFolder::Kind::Group:
      return members(folder.name);
    case ContactFolder::Kind::Letter:
      return byInitial_[initialIndex(folder.name)];
    case ContactFolder::Kind::Other:
      return byInitial_[otherInitial];
  }
  Q_UNREACHABLE();
}

// Selecting the members from the sorted contacts avoids sorting them.
ContactIndex::Contacts ContactIndex::members(const QString& groupName) const {
  const GroupFile* group = book_.findGroup(groupName);
  if (!group) return {};
  std::vector<bool> isMember(contacts_.size(), false);
  for (const auto& [name, contact] : group->members()) {
    const auto found = places_.find(contact);
    if (found != places_.end()) isMember[found->second] = true;
  }
  Contacts members;
  members.reserve(group->members().size());
  for (std::size_t place = 0; place < contacts_.size(); ++place)
    if (isMember[place]) members.push_back(contacts_[place]);
  return members;
}

void ContactIndex::prepareSearch() {
  if (std::exchange(isSearchReady_, true)) return;
  search_.reserve(contacts_.size());
  for (const ContactRecord* contact : contacts_) {
    search_.addField(shownName(contact->name));
    for (const QString* field : {&contact->phone, &contact->fax}) search_.addField(*field);
    for (const QString& extra : contact->extra) search_.addField(extra);
    search_.endText();
  }
}

ContactIndex::Contacts ContactIndex::find(const QString& typed) {
  prepareSearch();
  const std::vector<int> places = search_.find(typed);
  Contacts found;
  found.reserve(places.size());
  for (const int place : places) found.push_back(contacts_[static_cast<std::size_t>(place)]);
  return found;
}

}  // namespace parlexo
