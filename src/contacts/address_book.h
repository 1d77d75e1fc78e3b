// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <unordered_map>

#include <QByteArray>
#include <QHash>
#include <QHashFunctions>  // std::hash of QString
#include <QSet>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include "base/notifier.h"
#include "base/progress.h"
#include "contacts/contact_record.h"
#include "contacts/group_file.h"
#include "contacts/item_database.h"

namespace parlexo {

/// The name of the group that is the contact database itself: every contact belongs to it, and it is not
/// among AddressBook::groups().
inline constexpr char allContactsName[] = "All Contacts";
/// The group that always exists.
inline constexpr char personalContactsName[] = "My Personal Contacts";

/// All contacts and groups in memory, and every change written through to the files of the contacts
/// folder. Names are case-sensitive. The operations show their own failure messages; memory changes even
/// when the file could not be written. With `writeToFile` false an operation touches memory alone.
class AddressBook {
 public:
  /// By name, in no particular order. A record stays at its address until its contact is deleted.
  using Contacts = std::unordered_map<QString, ContactRecord>;
  using Groups = std::map<QString, GroupFile>;

  /// `folder` holds the files, with or without a separator at its end; it is used by the operations that
  /// read or write files only.
  AddressBook(const QString& folder, ItemDatabase& database, Notifier& notifier);

  /// While it lives, no failure is told twice: for actions of many writes, which may all fail alike. Two are
  /// the same when they differ only in what the store says behind "Error=".
  class MessagesOnce {
   public:
    explicit MessagesOnce(AddressBook& book) : book_(book) { book_.shownOnce_.emplace(); }
    ~MessagesOnce() { book_.shownOnce_.reset(); }
    MessagesOnce(const MessagesOnce&) = delete;
    MessagesOnce& operator=(const MessagesOnce&) = delete;

   private:
    AddressBook& book_;
  };

  AddressBook(const AddressBook&) = delete;
  AddressBook& operator=(const AddressBook&) = delete;

  /// Reads all contacts and groups, once, at the start of the program, and reports to `progress` how far it
  /// has come. Members without a contact are deleted from their group's file, unless the contact has been
  /// stored since the contacts were read: it is then loaded as well. False when a file could not be read,
  /// after a message: the program then ends.
  [[nodiscard]] bool loadAll(Progress& progress);
  /// Forgets contacts and groups; the files stay.
  void clear();

  /// Another number after every change in memory, for who shows contacts or groups.
  [[nodiscard]] quint64 revision() const { return revision_; }
  [[nodiscard]] const Contacts& contacts() const { return contacts_; }
  [[nodiscard]] const Groups& groups() const { return groups_; }
  /// Null when there is none of that name.
  [[nodiscard]] const ContactRecord* findContact(const QString& name) const;
  [[nodiscard]] const GroupFile* findGroup(const QString& name) const;

  /// Adds the contact, or takes its values over into the one of that name. False when writing failed. A new
  /// contact that could not be written gets no member records either, as every program would delete them at
  /// its next start; the first successful save writes those as well.
  bool saveContact(const ContactRecord& contact, bool writeToFile = true);
  /// Removes a contact from the database, from every group that has it, and from memory. True for a name
  /// that there is not; false when writing failed.
  bool deleteContact(const QString& name, bool writeToFile = true);
  /// Puts `contact` in the place of the contact `oldName`, in every group that has it too. The key of a
  /// stored record never changes, so a new one is written and the old one deleted. The old one stays in the
  /// files when the new one can't be written. False when writing failed.
  bool renameContact(const QString& oldName, const ContactRecord& contact);

  /// Creates a group with those of `memberNames` that are contacts; a group that exists gets them in
  /// addition. Each write is tried, whatever became of those before; false when one failed.
  bool createGroup(const QString& name, const QStringList& memberNames = {}, bool writeToFile = true);
  /// Removes the group and its file. False, after a message, when the file could not be removed or does not
  /// exist.
  bool deleteGroup(const QString& name);
  /// Adds a contact to a group. False when there is no such group or contact, and, after a message, when
  /// writing failed or the contact itself could not be written yet.
  bool addMember(const QString& groupName, const QString& contactName, bool writeToFile = true);
  /// Takes a contact out of a group. True when it was no member; false when there is no such group, or
  /// when writing failed.
  bool removeMember(const QString& groupName, const QString& contactName, bool writeToFile = true);

 private:
  /// Seconds that every operation waits for a file that somebody else has locked.
  static constexpr int timeoutSeconds = 60;

  [[nodiscard]] QString contactsPath() const;
  [[nodiscard]] static QString newGroupFileName(const QString& groupName);
  void createPersonalGroup();
  bool loadContacts(Progress& progress);
  bool loadGroups(Progress& progress);
  bool loadGroup(const QString& fileName, Progress& progress);
  [[nodiscard]] bool addLoadedMember(GroupFile& group, const QByteArray& key) const;
  void deleteOrphans(GroupFile& group, const QString& path, const QSet<QByteArray>& orphans);
  bool loadNewContacts(QString& error, const QSet<QByteArray>& keys);
  bool writeMember(const GroupFile& group, const QString& contactName);
  bool writePendingMembers(const QString& contactName);
  void showFailure(const QString& sentence, const QString& error = {});
  void showDeletionFailure(const QString& error);
  bool deleteMember(GroupFile& group, const QString& contactName, bool writeToFile);
  bool deleteName(const QString& path, const QByteArray& name, int recordSize);
  [[nodiscard]] QStringList groupsWith(const QString& contactName) const;

  QString folder_;
  ItemDatabase& database_;
  Notifier& notifier_;
  Contacts contacts_;
  Groups groups_;
  QHash<QString, QString> unsaved_;  // new contacts that could not be written, with the store's message
  quint64 revision_ = 0;
  std::optional<QStringList> shownOnce_;
};

}  // namespace parlexo
