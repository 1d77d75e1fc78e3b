// SPDX-License-Identifier: GPL-3.0-or-later
// Reading the whole address book at the start of the program.

#include <algorithm>
#include <optional>
#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QLatin1String>

#include "base/code_page.h"
#include "base/message_texts.h"
#include "contacts/address_book.h"
#include "contacts/contact_file_format.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int contactsPerProgress = 20;
// Limits the memory reserved up front: a damaged file may have any length.
constexpr qint64 contactsToExpect = 1'000'000;
// For reading the contacts while a group's file is locked. Shorter than the timeout of other programs that
// wait for that file.
constexpr int recheckTimeoutSeconds = 30;

// Returns the names of the group files in `folder`. Omits a file whose name can't be converted to text,
// because opening it by that text would create another file.
QStringList groupFileNames(const QString& folder) {
  const QDir dir(folder);
  QStringList names;
  for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden, QDir::Name))
    if (name.endsWith(QLatin1String(groupExtension)) && QFileInfo(dir, name).isFile()) names.append(name);
  return names;
}

}  // namespace

bool AddressBook::loadAll(Progress& progress, const ErrorHandler& onError) {
  createPersonalGroup(onError);
  if (!loadContacts(progress, onError)) return false;
  const QStringList fileNames = groupFileNames(folder_);
  return std::all_of(fileNames.begin(), fileNames.end(),
                     [&](const QString& fileName) { return loadGroup(fileName, progress, onError); });
}

void AddressBook::createPersonalGroup(const ErrorHandler& onError) {
  const QString path = folder_ + newGroupFileName(QLatin1String(personalContactsName));
  QString error;
  if (!database_.createDb(error, path)) onError({StoreError::Operation::CreatePersonalGroup, error, path});
}

bool AddressBook::loadContacts(Progress& progress, const ErrorHandler& onError) {
  progress.setText(tr("Loading all Contacts..."));
  const QString loadedText = tr("Loading all Contacts (%i Loaded)...");
  int loaded = 0;
  contacts_.reserve(static_cast<std::size_t>(
      std::min(QFileInfo(contactsPath()).size() / contactRecordSize, contactsToExpect)));
  const auto add = [&](QByteArrayView record) {
    ContactRecord contact = unpackContact(record);
    const QString name = contact.name;
    contacts_.insert_or_assign(name, std::move(contact));
    if (++loaded % contactsPerProgress == 0) progress.setText(withNumber(loadedText, loaded));
    return true;
  };
  QString error;
  if (database_.readAllItems(error, contactRecordSize, contactsPath(), add, timeoutSeconds)) return true;
  onError({StoreError::Operation::ReadFile, error});
  return false;
}

bool AddressBook::loadGroup(const QString& fileName, Progress& progress, const ErrorHandler& onError) {
  const QString name = decodeGroupFileName(fileName, QLatin1String(groupExtension));
  const auto [entry, isFirstFile] = groups_.try_emplace(name, name, fileName);
  GroupFile& group = entry->second;
  if (!isFirstFile) group.fileNames_.append(fileName);
  progress.setText(tr("Loading Group \"%1\"...").arg(name));
  QSet<QByteArray> orphans;
  const auto add = [&](QByteArrayView record) {
    const QByteArray key = unpackMember(record);
    if (!addLoadedMember(group, key)) orphans.insert(key);
    return true;
  };
  QString error;
  const QString path = folder_ + fileName;
  if (!database_.readAllItems(error, memberRecordSize, path, add, timeoutSeconds)) {
    onError({StoreError::Operation::ReadFile, error});
    return false;
  }
  if (!orphans.isEmpty() && !deleteOrphans(error, group, path, orphans))
    onError({StoreError::Operation::DeleteRecord, error});
  return true;
}

bool AddressBook::addLoadedMember(GroupFile& group, const QByteArray& key) const {
  const ContactRecord* contact = findContact(fromCodePage(key));
  if (contact) group.members_[contact->name] = contact;
  return contact != nullptr;
}

// Another user may have stored a contact and its membership after the contacts were read here. Programs write
// the contact first. Once the group's file is locked, a member whose contact is missing from the database is
// therefore one that no program has finished writing.
bool AddressBook::deleteOrphans(QString& error, GroupFile& group, const QString& path,
                                const QSet<QByteArray>& orphans) {
  const auto stillMissing = [&](QString& readError) -> std::optional<QSet<QByteArray>> {
    if (!loadNewContacts(readError, orphans)) return std::nullopt;
    QSet<QByteArray> missing;
    for (const QByteArray& key : orphans)
      if (!addLoadedMember(group, key)) missing.insert(key);
    return missing;
  };
  return database_.deleteItems(error, nameWidth, path, memberRecordSize, stillMissing, timeoutSeconds);
}

// Loads the contacts with these keys that have been stored since.
bool AddressBook::loadNewContacts(QString& error, const QSet<QByteArray>& keys) {
  const auto add = [&](QByteArrayView record) {
    if (keys.contains(unpackMember(record))) insertContact(unpackContact(record));
    return true;
  };
  return database_.readAllItems(error, contactRecordSize, contactsPath(), add, recheckTimeoutSeconds);
}

}  // namespace parlexo
