// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/address_book.h"

#include <QDir>
#include <QLatin1String>

#include "contacts/contact_file_format.h"
#include "contacts/group_file_name.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString withSeparator(const QString& folder) {
  const QString native = QDir::toNativeSeparators(folder);
  return native.endsWith(QDir::separator()) ? native : native + QDir::separator();
}

}  // namespace

AddressBook::AddressBook(const QString& folder, ItemDatabase& database, Notifier& notifier)
    : folder_(withSeparator(folder)), database_(database), notifier_(notifier) {}

void AddressBook::clear() {
  ++revision_;
  groups_.clear();
  contacts_.clear();
  unsaved_.clear();
}

const ContactRecord* AddressBook::findContact(const QString& name) const {
  const auto found = contacts_.find(name);
  return found == contacts_.end() ? nullptr : &found->second;
}

const GroupFile* AddressBook::findGroup(const QString& name) const {
  const auto found = groups_.find(name);
  return found == groups_.end() ? nullptr : &found->second;
}

bool AddressBook::saveContact(const ContactRecord& contact, bool writeToFile) {
  ++revision_;
  const QString name = contact.name;
  const bool isNew = contacts_.insert_or_assign(name, contact).second;
  if (!writeToFile) return true;
  QString error;
  if (database_.writeItem(error, nameWidth, contactsPath(), contactRecordSize, packContact(contact),
                          timeoutSeconds))
    return unsaved_.remove(name) == 0 || writePendingMembers(name);
  if (isNew || unsaved_.contains(name)) unsaved_[name] = error;
  showFailure(u"There was a problem trying to save your contact to the database. Error="_s, error);
  return false;
}

bool AddressBook::writePendingMembers(const QString& contactName) {
  bool written = true;
  for (const auto& [groupName, group] : groups_)
    if (group.contains(contactName)) written = writeMember(group, contactName) && written;
  return written;
}

bool AddressBook::deleteContact(const QString& name, bool writeToFile) {
  const auto found = contacts_.find(name);
  if (found == contacts_.end()) return true;
  // `name` may be a key of a group's members, which goes before the contact does.
  const QString& ownName = found->first;
  bool written = !writeToFile || deleteName(contactsPath(), packName(ownName), contactRecordSize);
  for (auto& [groupName, group] : groups_)
    if (group.contains(ownName)) written = deleteMember(group, ownName, writeToFile) && written;
  ++revision_;
  unsaved_.remove(ownName);
  contacts_.erase(found);
  return written;
}

bool AddressBook::renameContact(const QString& oldName, const ContactRecord& contact) {
  if (oldName == contact.name) return saveContact(contact);
  const bool isSaved = saveContact(contact);
  bool written = isSaved;
  for (const QString& groupName : groupsWith(oldName))
    written = addMember(groupName, contact.name) && written;
  // Names that differ only behind the key's width share the records just written.
  const bool hasOwnRecords = packName(oldName) != packName(contact.name);
  return deleteContact(oldName, isSaved && hasOwnRecords) && written;
}

bool AddressBook::createGroup(const QString& name, const QStringList& memberNames, bool writeToFile) {
  ++revision_;
  const GroupFile& group = groups_.try_emplace(name, name, newGroupFileName(name)).first->second;
  bool written = true;
  if (writeToFile) {
    QString error;
    written = database_.createDb(error, folder_ + group.fileNames_.first());
    if (!written)
      showFailure(u"There was a problem trying to create your group in the database Error="_s, error);
  }
  for (const QString& memberName : memberNames)
    if (findContact(memberName)) written = addMember(name, memberName, writeToFile) && written;
  return written;
}

bool AddressBook::deleteGroup(const QString& name) {
  const auto group = groups_.find(name);
  const QStringList fileNames =
      group == groups_.end() ? QStringList(newGroupFileName(name)) : group->second.fileNames_;
  ++revision_;
  if (group != groups_.end()) groups_.erase(group);
  bool removed = true;
  for (const QString& fileName : fileNames) removed = database_.removeDb(folder_ + fileName) && removed;
  if (removed) return true;
  showFailure(u"There was a problem trying to delete your group from the database"_s);
  return false;
}

bool AddressBook::addMember(const QString& groupName, const QString& contactName, bool writeToFile) {
  const auto group = groups_.find(groupName);
  const ContactRecord* contact = findContact(contactName);
  if (group == groups_.end() || !contact) return false;
  ++revision_;
  group->second.members_[contact->name] = contact;
  return !writeToFile || writeMember(group->second, contact->name);
}

bool AddressBook::writeMember(const GroupFile& group, const QString& contactName) {
  QString error = unsaved_.value(contactName);
  if (error.isEmpty() && database_.writeItem(error, nameWidth, folder_ + group.fileNames_.first(),
                                             memberRecordSize, packMember(contactName), timeoutSeconds))
    return true;
  showFailure(u"There was a problem saving your contact to the database group. Error="_s, error);
  return false;
}

bool AddressBook::removeMember(const QString& groupName, const QString& contactName, bool writeToFile) {
  const auto group = groups_.find(groupName);
  return group != groups_.end() && deleteMember(group->second, contactName, writeToFile);
}

bool AddressBook::deleteMember(GroupFile& group, const QString& contactName, bool writeToFile) {
  bool written = true;
  for (const QString& fileName : group.fileNames_) {
    if (!writeToFile) break;
    written = deleteName(folder_ + fileName, packName(contactName), memberRecordSize) && written;
  }
  ++revision_;
  group.members_.erase(contactName);
  return written;
}

bool AddressBook::deleteName(const QString& path, const QByteArray& name, int recordSize) {
  QString error;
  bool deleted = false;
  if (database_.deleteItem(error, nameWidth, path, name, recordSize, deleted, timeoutSeconds)) return true;
  showDeletionFailure(error);
  return false;
}

void AddressBook::showDeletionFailure(const QString& error) {
  showFailure(u"There was a problem deleting a contact from your database. Error="_s, error);
}

void AddressBook::showFailure(const QString& sentence, const QString& error) {
  if (shownOnce_ && shownOnce_->contains(sentence)) return;
  if (shownOnce_) shownOnce_->append(sentence);
  notifier_.error(sentence + error);
}

QStringList AddressBook::groupsWith(const QString& contactName) const {
  QStringList names;
  for (const auto& [groupName, group] : groups_)
    if (group.contains(contactName)) names.append(groupName);
  return names;
}

QString AddressBook::contactsPath() const {
  return folder_ + encodeGroupFileName(QLatin1String(allContactsName), QLatin1String(contactsExtension));
}

QString AddressBook::newGroupFileName(const QString& groupName) {
  return encodeGroupFileName(groupName, QLatin1String(groupExtension));
}

}  // namespace parlexo
