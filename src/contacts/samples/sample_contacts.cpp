// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/samples/sample_contacts.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLatin1String>

#include "contacts/address_book.h"
#include "contacts/contact_file_format.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array firstNames = {"Amelia", "Ben",    "Chloe",  "Daniel", "Elena", "Farid", "Grace",
                                   "Hugo",   "Ingrid", "José",   "Kavya",  "Liam",  "Mei",   "Noah",
                                   "Olga",   "Pedro",  "Quinn",  "Rosa",   "Sven",  "Tariq", "Uma",
                                   "Viktor", "Wendy",  "Xavier", "Yara",   "Zoë"};
constexpr std::array lastNames = {"Andersen", "Brown",  "Castillo", "Dubois", "Evans",  "Fischer",
                                  "García",   "Hughes", "Ito",      "Jansen", "Kumar",  "Lindqvist",
                                  "Müller",   "Nguyen", "O'Brien",  "Petrov", "Quist",  "Rossi",
                                  "Schmidt",  "Tanaka", "Usman",    "Vargas", "Wilson", "Xu",
                                  "Young",    "Zimmer", "Ahmed",    "Becker", "Costa"};
constexpr std::array towns = {"Brisbane", "Bristol", "Lisbon", "Lyon", "Oslo", "Penang", "Zürich"};
constexpr std::array roles = {"Customer", "Supplier", "Staff", "Volunteer"};
constexpr std::array languages = {"English", "French", "German", "Portuguese", "Spanish"};
constexpr std::array groupNames = {"Customers",      "Family",    "Football: Under 12s", "Night Shift",
                                   "Parents/Carers", "Choir",     "Book Club",           "Field Service",
                                   "Board Members",  "Neighbours"};

constexpr int faxOnlyEvery = 10;
constexpr int faxEvery = 4;
constexpr int personalMembers = 8;
constexpr int largestSmallGroup = 200;

// The ranges that regulators reserve for fiction have a thousand ten-digit numbers each.
constexpr int fictionNumbers = 1000;

template <std::size_t size>
QString pick(const std::array<const char*, size>& words, int index) {
  return QString::fromUtf8(words[static_cast<std::size_t>(index) % size]);
}

QString digits(int number, int width) {
  return QString::number(number).rightJustified(width, u'0');
}

// Uses every pair of first and last name once before repeating them with a number.
QString sampleName(int index) {
  const int firsts = static_cast<int>(firstNames.size());
  const int pairs = firsts * static_cast<int>(lastNames.size());
  const int pair = index % pairs;
  constexpr int stride = 11;  // keeps first and last names from being in alphabetical order together
  const QString name =
      pick(firstNames, pair) + u' ' + pick(lastNames, pair / firsts + pair % firsts * stride);
  return index < pairs ? name : name + u' ' + QString::number(index / pairs + 1);
}

// A thousand realistic numbers, followed by numbers with an unused country code.
QString sampleNumber(int index, const QString& fictionPrefix, int unusedStart) {
  if (index >= fictionNumbers) return u"+999"_s + digits(unusedStart + index, 9);
  constexpr int step = 37;
  constexpr int start = 100;
  return fictionPrefix + digits((index * step + start) % fictionNumbers, 3);
}

QString emailAddress(const QString& name) {
  QString mailbox;
  for (const QChar character : name.normalized(QString::NormalizationForm_D).toLower())
    if (character.unicode() < 0x80 && character.isLetterOrNumber())
      mailbox += character;
    else if (character == u' ')
      mailbox += u'.';
  return mailbox + u"@parlexo.example"_s;
}

ContactRecord sampleContact(int index) {
  const bool faxOnly = index % faxOnlyEvery == faxOnlyEvery - 1;
  ContactRecord contact;
  contact.name = sampleName(index);
  if (!faxOnly) contact.phone = sampleNumber(index, u"+447700900"_s, 0);
  if (faxOnly || index % faxEvery == 0) contact.fax = sampleNumber(index, u"+442079460"_s, 500'000'000);
  contact.supportsSms = faxOnly ? u"N"_s : u"Y"_s;
  contact.supportsMedia = faxOnly || index % 3 == 2 ? u"N"_s : u"Y"_s;
  contact.email = emailAddress(contact.name);
  contact.extra[0] = pick(towns, index);
  contact.extra[1] = pick(roles, index / 3);
  contact.extra[2] = pick(languages, index / 2);
  return contact;
}

QStringList sampleMembers(int group, const std::vector<ContactRecord>& contacts) {
  const int count = static_cast<int>(contacts.size());
  const int step = group == 0 ? 2 : group % 7 + 3;
  const int limit = group == 0 ? count : largestSmallGroup;
  QStringList names;
  for (int i = group % 5; i < count && names.size() < limit; i += step)
    names.append(contacts[static_cast<std::size_t>(i)].name);
  return names;
}

QString groupName(int group) {
  if (group < static_cast<int>(groupNames.size())) return pick(groupNames, group);
  return u"Group "_s + QString::number(group + 1);
}

bool containsAddressBook(const QDir& folder) {
  const QStringList patterns = {u"*.grp"_s, u"*.all_grp"_s};
  const QFileInfoList files = folder.entryInfoList(patterns, QDir::Files | QDir::Hidden);
  return std::any_of(files.begin(), files.end(), [](const QFileInfo& file) { return file.size() > 0; });
}

// Writes the file at once. Writing a large address book record by record through the database takes hours.
QString writeFile(const QString& path, const QByteArray& records) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly) && file.write(records) == records.size() && file.flush()) return {};
  return u"Can't write %1: %2"_s.arg(path, file.errorString());
}

QByteArray contactRecords(const std::vector<ContactRecord>& contacts) {
  QByteArray records;
  records.reserve(static_cast<qsizetype>(contacts.size()) * contactRecordSize);
  for (const ContactRecord& contact : contacts) records += packContact(contact);
  return records;
}

QByteArray memberRecords(const QStringList& names) {
  QByteArray records;
  records.reserve(names.size() * memberRecordSize);
  for (const QString& name : names) records += packMember(name);
  return records;
}

}  // namespace

std::vector<ContactRecord> sampleContacts(int count) {
  std::vector<ContactRecord> contacts;
  contacts.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (int i = 0; i < count; ++i) contacts.push_back(sampleContact(i));
  return contacts;
}

std::vector<SampleGroup> sampleGroups(int count, const std::vector<ContactRecord>& contacts) {
  SampleGroup personal = {QLatin1String(personalContactsName), {}};
  for (std::size_t i = 0; i < contacts.size() && i < personalMembers; ++i)
    personal.memberNames.append(contacts[i].name);
  std::vector<SampleGroup> groups = {personal};
  for (int group = 0; group < count; ++group)
    groups.push_back({groupName(group), sampleMembers(group, contacts)});
  return groups;
}

QString writeSampleFolder(const QString& folder, int contactCount, int groupCount) {
  const QDir dir(folder);
  if (!dir.mkpath(u"."_s)) return u"Can't make the folder %1"_s.arg(folder);
  if (containsAddressBook(dir)) return u"%1 holds an address book already"_s.arg(folder);
  const std::vector<ContactRecord> contacts = sampleContacts(contactCount);
  const auto filePath = [&](const QString& name, const char* extension) {
    return dir.filePath(encodeGroupFileName(name, QLatin1String(extension)));
  };
  QString problem =
      writeFile(filePath(QLatin1String(allContactsName), contactsExtension), contactRecords(contacts));
  for (const SampleGroup& group : sampleGroups(groupCount, contacts))
    if (problem.isEmpty())
      problem = writeFile(filePath(group.name, groupExtension), memberRecords(group.memberNames));
  return problem;
}

}  // namespace parlexo
