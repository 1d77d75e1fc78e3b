// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/address_book.h"

#include <QDir>
#include <QLatin1String>

#include "contacts/contact_file_format.h"

namespace parlexo {

namespace {

QString withSeparator(const QString& folder) {
  const QString native = QDir::toNativeSeparators(folder);
  return native.endsWith(QDir::separator()) ? native : native + QDir::separator();
}

}  // namespace

AddressBook::AddressBook(const QString& folder, ItemDatabase& database)
    : folder_(withSeparator(folder)), database_(database) {}

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

void AddressBook::insertContact(const ContactRecord& contact) {
  ++revision_;
  // The caller's record may be the one that is replaced.
  const QString name = contact.name;
  contacts_.insert_or_assign(name, contact);
}

StoreResult AddressBook::saveContact(const ContactRecord& contact) {
  const QString name = contact.name;
  const bool isNew = !findContact(name);
  insertContact(contact);
  QString error;
  if (database_.writeItem(error, nameWidth, contactsPath(), contactRecordSize, packContact(contact),
                          timeoutSeconds))
    return unsaved_.remove(name) == 0 ? StoreResult() : writePendingMembers(name);
  if (isNew || unsaved_.contains(name)) unsaved_[name] = error;
  return StoreResult({StoreError::Operation::SaveContact, error});
}

StoreResult AddressBook::writePendingMembers(const QString& contactName) {
  StoreResult result;
  for (const auto& [groupName, group] : groups_)
    if (group.contains(contactName)) result.append(writeMember(group, contactName));
  return result;
}

void AddressBook::eraseContact(const QString& name) {
  const auto found = contacts_.find(name);
  if (found == contacts_.end()) return;
  ++revision_;
  // `name` may refer to the key of a member, which is erased before the contact.
  const QString& ownName = found->first;
  for (auto& [groupName, group] : groups_) group.members_.erase(ownName);
  unsaved_.remove(ownName);
  contacts_.erase(found);
}

StoreResult AddressBook::deleteContact(const QString& name) {
  if (!findContact(name)) return {};
  StoreResult result = deleteRecord(contactsPath(), name, contactRecordSize);
  for (const auto& [groupName, group] : groups_)
    if (group.contains(name)) result.append(deleteMemberRecords(group, name));
  eraseContact(name);
  return result;
}

StoreResult AddressBook::renameContact(const QString& oldName, const ContactRecord& contact) {
  if (oldName == contact.name) return saveContact(contact);
  StoreResult result = saveContact(contact);
  const bool isSaved = static_cast<bool>(result);
  for (const QString& groupName : groupsWith(oldName)) result.append(addMember(groupName, contact.name));
  // Names that differ only beyond the key's width share the records just written.
  const bool hasOwnRecords = packName(oldName) != packName(contact.name);
  if (isSaved && hasOwnRecords)
    result.append(deleteContact(oldName));
  else
    eraseContact(oldName);
  return result;
}

void AddressBook::insertGroup(const QString& name) {
  ++revision_;
  groups_.try_emplace(name, name, newGroupFileName(name));
}

StoreResult AddressBook::createGroup(const QString& name, const QStringList& memberNames) {
  insertGroup(name);
  StoreResult result;
  QString error;
  if (!database_.createDb(error, folder_ + findGroup(name)->fileNames_.first()))
    result.append(StoreResult({StoreError::Operation::CreateGroup, error}));
  for (const QString& memberName : memberNames) result.append(addMember(name, memberName));
  return result;
}

StoreResult AddressBook::deleteGroup(const QString& name) {
  const auto group = groups_.find(name);
  const QStringList fileNames =
      group == groups_.end() ? QStringList(newGroupFileName(name)) : group->second.fileNames_;
  ++revision_;
  if (group != groups_.end()) groups_.erase(group);
  bool removed = true;
  for (const QString& fileName : fileNames) removed = database_.removeDb(folder_ + fileName) && removed;
  return removed ? StoreResult() : StoreResult({StoreError::Operation::RemoveGroup});
}

void AddressBook::insertMember(const QString& groupName, const QString& contactName) {
  const auto group = groups_.find(groupName);
  const ContactRecord* contact = findContact(contactName);
  if (group == groups_.end() || !contact) return;
  ++revision_;
  group->second.members_[contact->name] = contact;
}

StoreResult AddressBook::addMember(const QString& groupName, const QString& contactName) {
  const GroupFile* group = findGroup(groupName);
  if (!group || !findContact(contactName)) return {};
  insertMember(groupName, contactName);
  return writeMember(*group, contactName);
}

StoreResult AddressBook::writeMember(const GroupFile& group, const QString& contactName) {
  QString error = unsaved_.value(contactName);
  if (error.isEmpty() && database_.writeItem(error, nameWidth, folder_ + group.fileNames_.first(),
                                             memberRecordSize, packMember(contactName), timeoutSeconds))
    return {};
  return StoreResult({StoreError::Operation::SaveMember, error});
}

void AddressBook::eraseMember(const QString& groupName, const QString& contactName) {
  const auto group = groups_.find(groupName);
  if (group == groups_.end()) return;
  ++revision_;
  group->second.members_.erase(contactName);
}

StoreResult AddressBook::removeMember(const QString& groupName, const QString& contactName) {
  const GroupFile* group = findGroup(groupName);
  if (!group) return {};
  StoreResult result = deleteMemberRecords(*group, contactName);
  eraseMember(groupName, contactName);
  return result;
}

StoreResult AddressBook::deleteMemberRecords(const GroupFile& group, const QString& contactName) {
  StoreResult result;
  for (const QString& fileName : group.fileNames_)
    result.append(deleteRecord(folder_ + fileName, contactName, memberRecordSize));
  return result;
}

StoreResult AddressBook::deleteRecord(const QString& path, const QString& name, int recordSize) {
  QString error;
  bool deleted = false;
  if (database_.deleteItem(error, nameWidth, path, packName(name), recordSize, deleted, timeoutSeconds))
    return {};
  return StoreResult({StoreError::Operation::DeleteRecord, error});
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
