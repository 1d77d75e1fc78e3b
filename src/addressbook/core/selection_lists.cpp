// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/selection_lists.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include <QSet>

#include "addressbook/core/contact_selection.h"
#include "contacts/group_file.h"

namespace parlexo {

void RowSpan::include(int row) {
  *this = isEmpty() ? RowSpan{row, row} : RowSpan{std::min(first, row), std::max(last, row)};
}

SelectionLists::SelectionLists(const AddressBook& book, SelectionMode mode, const ContactSelection& initial)
    : contacts_(sortedContacts(book, mode)),
      contactTicks_(contacts_.size(), false),
      groups_(sortedGroups(book)),
      groupTicks_(groups_.size(), false) {
  rows_.reserve(contacts_.size());
  for (std::size_t row = 0; row < contacts_.size(); ++row)
    rows_.emplace(contacts_[row], static_cast<int>(row));
  tickInitial(initial);
}

void SelectionLists::tickInitial(const ContactSelection& initial) {
  // Contacts are identified by name, because the selection may contain copies of the records.
  QSet<QString> names;
  for (const ContactRecord* contact : initial) names.insert(contact->name);
  if (names.isEmpty()) return;
  for (std::size_t row = 0; row < contacts_.size(); ++row) {
    contactTicks_[row] = names.contains(contacts_[row]->name);
  }
}

void SelectionLists::setTicked(const ContactRecord* contact, bool ticked, RowSpan& changed) {
  const auto found = rows_.find(contact);
  if (found == rows_.end()) return;
  contactTicks_[found->second] = ticked;
  changed.include(found->second);
}

RowSpan SelectionLists::setGroupTicked(int row, bool ticked) {
  groupTicks_[row] = ticked;
  RowSpan changed;
  for (const auto& [name, contact] : groups_[row]->members()) setTicked(contact, ticked, changed);
  return changed;
}

RowSpan SelectionLists::tickContacts(const ContactSelection::Contacts& contacts) {
  RowSpan changed;
  for (const ContactRecord* contact : contacts) setTicked(contact, true, changed);
  return changed;
}

void SelectionLists::clear() {
  contactTicks_.assign(contactTicks_.size(), false);
  groupTicks_.assign(groupTicks_.size(), false);
}

int SelectionLists::tickedCount() const {
  return static_cast<int>(std::count(contactTicks_.begin(), contactTicks_.end(), true));
}

ContactSelection SelectionLists::tickedContacts() const {
  ContactSelection::Contacts ticked;
  for (std::size_t row = 0; row < contacts_.size(); ++row) {
    if (contactTicks_[row]) ticked.push_back(contacts_[row]);
  }
  return ContactSelection::fromSorted(std::move(ticked));
}

}  // namespace parlexo
