// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unordered_map>
#include <vector>

#include <QString>

#include "addressbook/core/contact_selection.h"
#include "contacts/contact_record.h"

namespace parlexo {

class AddressBook;
class GroupFile;

/// A range of rows, inclusive; empty if last < first.
struct RowSpan {
  int first = 0;
  int last = -1;

  [[nodiscard]] bool isEmpty() const { return last < first; }
  /// Extends the range to include `row`.
  void include(int row);
};

/// The groups and eligible contacts for a selection dialog, both sorted by name, with their ticks. The
/// address book must outlive it and must not change.
class SelectionLists {
 public:
  /// Lists all groups, unticked, and the eligible contacts for `mode`. Ticks those whose names are in
  /// `initial`.
  SelectionLists(const AddressBook& book, SelectionMode mode, const ContactSelection& initial);

  [[nodiscard]] int contactCount() const { return static_cast<int>(contacts_.size()); }
  [[nodiscard]] const ContactRecord& contact(int row) const { return *contacts_[row]; }
  [[nodiscard]] bool isContactTicked(int row) const { return contactTicks_[row]; }
  void setContactTicked(int row, bool ticked) { contactTicks_[row] = ticked; }

  [[nodiscard]] int groupCount() const { return static_cast<int>(groups_.size()); }
  [[nodiscard]] const GroupFile& group(int row) const { return *groups_[row]; }
  [[nodiscard]] bool isGroupTicked(int row) const { return groupTicks_[row]; }
  /// Ticks or unticks a group and its eligible members. Returns the range of contact rows that may have
  /// changed.
  RowSpan setGroupTicked(int row, bool ticked);

  /// Ticks the listed contacts among `contacts`. Returns the range of contact rows that may have changed.
  RowSpan tickContacts(const ContactSelection::Contacts& contacts);

  /// Unticks every contact and every group.
  void clear();

  /// The number of ticked contacts.
  [[nodiscard]] int tickedCount() const;
  /// The ticked contacts, regardless of the ticks of groups.
  [[nodiscard]] ContactSelection tickedContacts() const;

 private:
  void tickInitial(const ContactSelection& initial);
  void setTicked(const ContactRecord* contact, bool ticked, RowSpan& changed);

  std::vector<const ContactRecord*> contacts_;
  std::vector<bool> contactTicks_;
  std::unordered_map<const ContactRecord*, int> rows_;
  std::vector<const GroupFile*> groups_;
  std::vector<bool> groupTicks_;
};

}  // namespace parlexo
