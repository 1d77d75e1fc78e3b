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
#include "contacts/group_file_name.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int contactsPerProgress = 20;
// Room is made at once for as many contacts as the file has, but not for more than this: a broken file may
// claim any length.
constexpr qint64 contactsToExpect = 1'000'000;
// For the contacts while a group's file is locked: less than the time after which other programs that wait
// for that file give up.
constexpr int recheckTimeoutSeconds = 30;

QString connectingProblem(const QString& error) {
  return u"There was a problem connecting to the database. Please ensure you can connect to the database "
         "storage location. Error="_s +
         error;
}

// The group files of a folder. One whose name can't be told as text is left out, because opening it by
// that text would create another file.
QStringList groupFileNames(const QString& folder) {
  const QDir dir(folder);
  QStringList names;
  for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden, QDir::Name))
    if (name.endsWith(QLatin1String(groupExtension)) && QFileInfo(dir, name).isFile()) names.append(name);
  return names;
}

}  // namespace

bool AddressBook::loadAll(Progress& progress) {
  createPersonalGroup();
  return loadContacts(progress) && loadGroups(progress);
}

void AddressBook::createPersonalGroup() {
  const QString path = folder_ + newGroupFileName(QLatin1String(personalContactsName));
  QString error;
  if (database_.createDb(error, path)) return;
  notifier_.show(u"Can't create the personal contacts database: "_s + path + u" Error="_s + error,
                 message_style::ok);
}

bool AddressBook::loadContacts(Progress& progress) {
  progress.setText(u"Loading all Contacts..."_s);
  const QString loadedText = u"Loading all Contacts (%i Loaded)..."_s;
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
  notifier_.error(connectingProblem(error));
  return false;
}

bool AddressBook::loadGroups(Progress& progress) {
  for (const QString& fileName : groupFileNames(folder_))
    if (!loadGroup(fileName, progress)) return false;
  return true;
}

bool AddressBook::loadGroup(const QString& fileName, Progress& progress) {
  const QString name = decodeGroupFileName(fileName, QLatin1String(groupExtension));
  const auto [entry, isFirstFile] = groups_.try_emplace(name, name, fileName);
  GroupFile& group = entry->second;
  if (!isFirstFile) group.fileNames_.append(fileName);
  progress.setText(u"Loading Group \"%1\"..."_s.arg(name));
  QSet<QByteArray> orphans;
  const auto add = [&](QByteArrayView record) {
    const QByteArray key = unpackMember(record);
    if (!addLoadedMember(group, key)) orphans.insert(key);
    return true;
  };
  QString error;
  const QString path = folder_ + fileName;
  if (!database_.readAllItems(error, memberRecordSize, path, add, timeoutSeconds)) {
    notifier_.error(connectingProblem(error));
    return false;
  }
  if (!orphans.isEmpty()) deleteOrphans(group, path, orphans);
  return true;
}

bool AddressBook::addLoadedMember(GroupFile& group, const QByteArray& key) const {
  const ContactRecord* contact = findContact(fromCodePage(key));
  if (contact) group.members_[contact->name] = contact;
  return contact != nullptr;
}

// A colleague may have stored a contact and its membership after the contacts were read here. Programs write
// the contact first, so once the group's file is locked, a contact that is not in the database has no
// acknowledged membership that it could lose.
void AddressBook::deleteOrphans(GroupFile& group, const QString& path, const QSet<QByteArray>& orphans) {
  const auto stillMissing = [&](QString& error) -> std::optional<QSet<QByteArray>> {
    if (!loadNewContacts(error, orphans)) return std::nullopt;
    QSet<QByteArray> missing;
    for (const QByteArray& key : orphans)
      if (!addLoadedMember(group, key)) missing.insert(key);
    return missing;
  };
  QString error;
  if (!database_.deleteItems(error, nameWidth, path, memberRecordSize, stillMissing, timeoutSeconds))
    showDeletionFailure(error);
}

// Loads those of the contacts with these keys that are in the database by now.
bool AddressBook::loadNewContacts(QString& error, const QSet<QByteArray>& keys) {
  const auto add = [&](QByteArrayView record) {
    if (keys.contains(unpackMember(record))) saveContact(unpackContact(record), false);
    return true;
  };
  return database_.readAllItems(error, contactRecordSize, contactsPath(), add, recheckTimeoutSeconds);
}

}  // namespace parlexo
