// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "addressbook/core/addressbook_services.h"
#include "addressbook/core/contact_index.h"
#include "addressbook/core/group_draft.h"
#include "contacts/contact_record.h"

namespace parlexo {

/// The user's actions on contacts and groups: the folders that allow them, their confirmation questions and
/// progress texts. A failed write does not prevent the following ones. Memory follows the user even where the
/// files could not be written. Each kind of error is shown once per action.
class ContactsFlow {
  Q_DECLARE_TR_FUNCTIONS(ContactsFlow)

 public:
  explicit ContactsFlow(const AddressBookServices& services) : services_(services) {}

  /// Each returns whether `folder` supports the action, and shows a message if not.
  [[nodiscard]] bool acceptsNewContact(const ContactFolder& folder) const;
  [[nodiscard]] bool acceptsImport(const ContactFolder& folder) const;
  [[nodiscard]] bool hasProperties(const ContactFolder& folder) const;

  /// Saves a new contact and adds it to the group.
  void addContact(const ContactRecord& contact, const QString& group) const;
  /// Saves the contact that was named `oldName`. The name can only have changed if it was empty. The contact
  /// stays in its groups.
  void changeContact(const QString& oldName, const ContactRecord& contact) const;
  /// Saves a new or edited group.
  void saveGroup(const GroupChanges& changes) const;

  /// Asks whether `count` contacts, at least one, may be deleted in `folder`: removed from a group, or
  /// deleted completely in any other folder. Returns true for yes.
  [[nodiscard]] bool confirmDeletion(const ContactFolder& folder, int count) const;
  /// Deletes them. `names` must not refer to strings owned by the address book.
  void deleteContacts(const ContactFolder& folder, const QStringList& names) const;

  /// Asks whether the folder's group may be deleted. Shows a message and returns false if it can't be
  /// deleted.
  [[nodiscard]] bool confirmGroupDeletion(const ContactFolder& folder) const;
  void deleteGroup(const QString& group) const;

 private:
  class ErrorReport;

  void saveContacts(const GroupChanges& changes, ErrorReport& report) const;
  void changeMembers(const GroupChanges& changes, ErrorReport& report) const;
  /// Repaints the progress box between two writes.
  void refreshProgress() const;

  AddressBookServices services_;
};

}  // namespace parlexo
