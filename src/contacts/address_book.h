// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <unordered_map>

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QHashFunctions>  // std::hash of QString
#include <QSet>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include "base/progress.h"
#include "contacts/contact_record.h"
#include "contacts/group_file.h"
#include "contacts/item_database.h"
#include "contacts/store_result.h"

namespace parlexo {

/// The name of the contact database as a group. All contacts belong to it; AddressBook::groups() omits it.
inline constexpr char allContactsName[] = "All Contacts";
/// The name of the group that is created at start-up when it is missing.
inline constexpr char personalContactsName[] = "My Personal Contacts";

/// All contacts and groups in memory. Every change is written to the files of the contacts folder at once.
/// Names are case-sensitive. Memory changes even when a file could not be written.
class AddressBook {
  Q_DECLARE_TR_FUNCTIONS(AddressBook)

 public:
  /// By name, in no particular order. A record keeps its address until its contact is deleted.
  using Contacts = std::unordered_map<QString, ContactRecord>;
  using Groups = std::map<QString, GroupFile>;
  using ErrorHandler = std::function<void(const StoreError& error)>;

  /// `folder` holds the files; a trailing separator is optional. Only the operations that read or write files
  /// access it. `database` must outlive the address book.
  AddressBook(const QString& folder, ItemDatabase& database);

  AddressBook(const AddressBook&) = delete;
  AddressBook& operator=(const AddressBook&) = delete;

  /// Reads all contacts and groups, once, at the start of the program, and reports to `progress` how many it
  /// has read. Members without a contact are deleted from their group's file, unless the contact has been
  /// stored since the contacts were read; that contact is then loaded as well. Calls `onError` for each
  /// error when it occurs. Returns false, after the last error, when a file could not be read.
  [[nodiscard]] bool loadAll(Progress& progress, const ErrorHandler& onError);
  /// Removes all contacts and groups from memory; the files stay.
  void clear();

  /// Changes with every change in memory, for views of contacts or groups.
  [[nodiscard]] quint64 revision() const { return revision_; }
  [[nodiscard]] const Contacts& contacts() const { return contacts_; }
  [[nodiscard]] const Groups& groups() const { return groups_; }
  /// Both return null for an unknown name.
  [[nodiscard]] const ContactRecord* findContact(const QString& name) const;
  [[nodiscard]] const GroupFile* findGroup(const QString& name) const;

  /// Adds the contact, or replaces the values of the existing contact with its name. If a new contact could
  /// not be written, its memberships are not written either, because every program would delete them at its
  /// next start; the first successful save writes them too.
  StoreResult saveContact(const ContactRecord& contact);
  /// Removes a contact from the database, from all its groups, and from memory. No-op for an unknown name.
  StoreResult deleteContact(const QString& name);
  /// Replaces the contact `oldName` by `contact`, in all its groups too. The key of a stored record never
  /// changes, so a new record is written and the old one deleted. The old record stays in the files when the
  /// new one can't be written.
  StoreResult renameContact(const QString& oldName, const ContactRecord& contact);

  /// Creates a group with those of `memberNames` that are contacts, or adds them to an existing group. A
  /// failed write does not prevent the others.
  StoreResult createGroup(const QString& name, const QStringList& memberNames = {});
  /// Removes the group and its file. Fails when the file could not be removed or does not exist.
  StoreResult deleteGroup(const QString& name);
  /// Adds a contact to a group. No-op for an unknown group or contact. Fails when writing failed or the
  /// contact itself could not be written yet.
  StoreResult addMember(const QString& groupName, const QString& contactName);
  /// Removes a contact from a group. No-op for an unknown group.
  StoreResult removeMember(const QString& groupName, const QString& contactName);

  /// The same changes in memory only: to undo a change that could not be written, and for address books
  /// without files.
  void insertContact(const ContactRecord& contact);
  void eraseContact(const QString& name);
  void insertGroup(const QString& name);
  void insertMember(const QString& groupName, const QString& contactName);
  void eraseMember(const QString& groupName, const QString& contactName);

 private:
  /// Seconds for which an operation waits when another user has locked the file.
  static constexpr int timeoutSeconds = 60;

  [[nodiscard]] QString contactsPath() const;
  [[nodiscard]] static QString newGroupFileName(const QString& groupName);
  void createPersonalGroup(const ErrorHandler& onError);
  [[nodiscard]] bool loadContacts(Progress& progress, const ErrorHandler& onError);
  [[nodiscard]] bool loadGroup(const QString& fileName, Progress& progress, const ErrorHandler& onError);
  [[nodiscard]] bool addLoadedMember(GroupFile& group, const QByteArray& key) const;
  [[nodiscard]] bool deleteOrphans(QString& error, GroupFile& group, const QString& path,
                                   const QSet<QByteArray>& orphans);
  [[nodiscard]] bool loadNewContacts(QString& error, const QSet<QByteArray>& keys);
  StoreResult writeMember(const GroupFile& group, const QString& contactName);
  StoreResult writePendingMembers(const QString& contactName);
  StoreResult deleteMemberRecords(const GroupFile& group, const QString& contactName);
  StoreResult deleteRecord(const QString& path, const QString& name, int recordSize);
  [[nodiscard]] QStringList groupsWith(const QString& contactName) const;

  QString folder_;
  ItemDatabase& database_;
  Contacts contacts_;
  Groups groups_;
  QHash<QString, QString> unsaved_;  // new contacts that could not be written, with the database's message
  quint64 revision_ = 0;
};

}  // namespace parlexo
