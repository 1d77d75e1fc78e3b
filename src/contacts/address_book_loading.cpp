// Reading the whole address book at the start of the program.

#include <algorithm>
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

namespace {

constexpr int contactsPerProgress = 20;
// Room is made at once for as many contacts as the file has, but not for more than this: a broken file may
// claim any length.
constexpr qint64 contactsToExpect = 1'000'000;

QString connectingProblem(const QString& error) {
  return QStringLiteral(
             "There was a problem connecting to the database. Please ensure you can connect to the database "
             "storage location. Error=") +
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
  notifier_.show(QStringLiteral("Can't create the personal contacts database: ") + path +
                     QStringLiteral(" Error=") + error,
                 message_style::ok);
}

bool AddressBook::loadContacts(Progress& progress) {
  progress.setText(QStringLiteral("Loading all Contacts..."));
  const QString loadedText = QStringLiteral("Loading all Contacts (%i Loaded)...");
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
  progress.setText(QStringLiteral("Loading Group \"%1\"...").arg(name));
  QByteArrayList orphans;
  const auto add = [&](QByteArrayView record) {
    addLoadedMember(group, unpackMember(record), orphans);
    return true;
  };
  QString error;
  const QString path = folder_ + fileName;
  if (!database_.readAllItems(error, memberRecordSize, path, add, timeoutSeconds)) {
    notifier_.error(connectingProblem(error));
    return false;
  }
  deleteOrphans(path, orphans);
  return true;
}

void AddressBook::addLoadedMember(GroupFile& group, const QByteArray& name, QByteArrayList& orphans) const {
  if (const ContactRecord* contact = findContact(fromCodePage(name)))
    group.members_[contact->name] = contact;
  else
    orphans.append(name);
}

// One that can't be deleted does not hinder the others; the next start tries it again.
void AddressBook::deleteOrphans(const QString& path, const QByteArrayList& orphans) {
  for (const QByteArray& orphan : orphans) deleteName(path, orphan, memberRecordSize);
}

}  // namespace parlexo
