// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include <QHashFunctions>  // std::hash of QString
#include <QString>
#include <QStringList>

#include "addressbook/core/contact_selection.h"
#include "contacts/contact_record.h"

namespace parlexo {

class AddressBook;

/// What has to be written so that a group becomes what the user made of it.
struct GroupChanges {
  QString group;
  bool isNew = false;                   ///< the group has to be created
  std::vector<ContactRecord> contacts;  ///< new or changed ones, to be saved first
  QStringList added;                    ///< contacts that become members
  QStringList removed;                  ///< members that leave
  /// The name given to the contact that had none, which is among `contacts`; empty when none was given.
  QString newName = {};
};

/// A name for a new group that would be another one after the next start of the program.
struct UnstableGroupName {
  QString afterRestart;
  QString suggestion;   ///< a similar name that stays
  qsizetype place = 0;  ///< of the first character that would be another one
};

/// A group while it is being edited: members come and go, contacts are created and changed, and nothing of
/// it is in the address book before changes() are written. The book must outlive the draft and stay as it is.
class GroupDraft {
 public:
  using Contacts = ContactSelection::Contacts;

  /// Without a `name` a new group, otherwise the group of `book` with this name, which may be empty.
  GroupDraft(const AddressBook& book, const std::optional<QString>& name);

  [[nodiscard]] bool isNew() const { return isNew_; }
  [[nodiscard]] const QString& name() const { return name_; }
  /// The members by name; the records are good until the next change.
  [[nodiscard]] const Contacts& members() const { return members_; }
  /// The members as far as they are contacts of the address book.
  [[nodiscard]] ContactSelection selection() const;
  /// Whether a new contact would meet another one of this name.
  [[nodiscard]] bool isContactNameTaken(const QString& name) const;

  /// Makes the picked contacts the members, and keeps those that are yet to be created.
  void setSelection(const ContactSelection& picked);
  /// Takes members out. A contact that was created here is dropped as a whole.
  void remove(const QStringList& names);
  /// Takes a new contact in, or the changed values of a member.
  void put(const ContactRecord& contact);
  /// Takes the changed values of the member without a name, a name among them.
  void putNameless(const ContactRecord& contact);

  /// Gives the group the name that was typed, blanks at both ends trimmed. Returns what is wrong with it, or
  /// an empty text. The name of a group that exists is not looked at: it stays.
  [[nodiscard]] QString takeName(const QString& typed);

  /// Whether a new group can't keep the name that was typed, blanks at both ends trimmed. The name of an
  /// existing group is never unstable.
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
  QString newName_;                                     // of the contact without a name
  Contacts members_;
};

}  // namespace parlexo
