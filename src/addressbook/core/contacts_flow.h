// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "addressbook/core/addressbook_services.h"
#include "addressbook/core/contact_folder.h"
#include "addressbook/core/group_draft.h"
#include "contacts/contact_record.h"

namespace parlexo {

/// What can be done with contacts and groups, in which folder, after which question and under which text of
/// the progress box. Every write is tried, whatever became of those before; the book in memory follows the
/// user even where its files could not, and tells a failure once per action.
class ContactsFlow {
 public:
  explicit ContactsFlow(const AddressBookServices& services) : services_(services) {}

  /// Each asks whether `folder` is one for the purpose, and tells the user when it is not.
  [[nodiscard]] bool acceptsNewContact(const ContactFolder& folder) const;
  [[nodiscard]] bool acceptsImport(const ContactFolder& folder) const;
  [[nodiscard]] bool hasProperties(const ContactFolder& folder) const;

  /// Saves a new contact and makes it a member of the group.
  void addContact(const ContactRecord& contact, const QString& group) const;
  /// Saves the contact that was called `oldName`. Only one without a name can have got another one; it stays
  /// in its groups.
  void changeContact(const QString& oldName, const ContactRecord& contact) const;
  /// Writes what the user made of a group.
  void saveGroup(const GroupChanges& changes) const;

  /// Asks before `count` contacts, at least one, are deleted in `folder`: in a group they only leave the
  /// group, anywhere else they are deleted completely.
  [[nodiscard]] bool confirmDeletion(const ContactFolder& folder, int count) const;
  /// Carries that out. The names must not lie in records or groups of the book, which go meanwhile.
  void deleteContacts(const ContactFolder& folder, const QStringList& names) const;

  /// Asks before the folder's group is deleted. False also where there is none to delete, after a message.
  [[nodiscard]] bool confirmGroupDeletion(const ContactFolder& folder) const;
  void deleteGroup(const QString& group) const;

 private:
  void saveContacts(const GroupChanges& changes) const;
  void changeMembers(const GroupChanges& changes) const;
  /// Lets the progress box live on between two writes.
  void keepAlive() const;

  AddressBookServices services_;
};

}  // namespace parlexo
