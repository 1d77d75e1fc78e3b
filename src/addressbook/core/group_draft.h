// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include <QCoreApplication>
#include <QHashFunctions>  // std::hash of QString
#include <QString>
#include <QStringList>

#include "addressbook/core/contact_selection.h"
#include "contacts/contact_record.h"

namespace parlexo {

class AddressBook;

/// The changes to save after the user has edited a group.
struct GroupChanges {
  QString group;
  bool isNew = false;                        ///< the group must be created
  std::vector<ContactRecord> contacts = {};  ///< new or changed contacts, to be saved first
  QStringList added = {};                    ///< names of new members
  QStringList removed = {};                  ///< names of removed members
  /// The new name of the contact without a name, which is among `contacts`; empty if it has not got one.
  QString newName = {};
};

/// A name for a new group that would be different after a restart of the program, because its file name
/// decodes to another name.
struct UnstableGroupName {
  QString afterRestart;
  QString suggestion;   ///< a similar stable name
  qsizetype place = 0;  ///< position of the first different character
};

/// A group being edited, with its new and changed contacts. The address book is not changed until the caller
/// saves changes(). It must outlive the draft and must not change in between.
class GroupDraft {
  Q_DECLARE_TR_FUNCTIONS(GroupDraft)

 public:
  using Contacts = ContactSelection::Contacts;

  /// Edits the group of `book` with this name, which may be empty, or a new group for nullopt.
  GroupDraft(const AddressBook& book, const std::optional<QString>& name);

  [[nodiscard]] bool isNew() const { return isNew_; }
  [[nodiscard]] const QString& name() const { return name_; }
  /// The members, sorted by name. The pointers are valid until the next change.
  [[nodiscard]] const Contacts& members() const { return members_; }
  /// The members that are contacts of the address book.
  [[nodiscard]] ContactSelection selection() const;
  /// Whether a contact with this name exists in the address book or the draft.
  [[nodiscard]] bool isContactNameTaken(const QString& name) const;

  /// Replaces the members by `picked`, except for new contacts, which remain members.
  void setSelection(const ContactSelection& picked);
  /// Removes members. A contact created in this draft is discarded.
  void remove(const QStringList& names);
  /// Adds a new contact, or replaces the values of a member.
  void put(const ContactRecord& contact);
  /// Replaces the values of the member without a name, including the name.
  void putNameless(const ContactRecord& contact);

  /// Sets the name of a new group, trimmed. Returns a message for the user if it is invalid, otherwise an
  /// empty string. No-op for an existing group.
  [[nodiscard]] QString setName(const QString& typed);

  /// Returns details if the name typed for a new group, trimmed, would change after a restart. Always nullopt
  /// for an existing group.
  [[nodiscard]] std::optional<UnstableGroupName> unstableName(const QString& typed) const;

  [[nodiscard]] GroupChanges changes() const;

 private:
  [[nodiscard]] const ContactRecord* current(const ContactRecord* contact) const;
  [[nodiscard]] bool isNameInUse(const QString& name) const;
  void setMembers(Contacts members);

  const AddressBook& book_;
  bool isNew_;
  QString name_;
  std::unordered_map<QString, ContactRecord> pending_;  // new and changed contacts
  QString newName_;                                     // the new name of the contact without a name
  Contacts members_;
};

}  // namespace parlexo
