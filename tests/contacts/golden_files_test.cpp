// SPDX-License-Identifier: GPL-3.0-or-later
// Files written by an independent program (tools/make-golden-contacts).

#include "contacts/contact_file_format.h"
#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

const QString zoe = "Zo\u00EB";
const QString zoeInSmall = "zo\u00EB";
const QString every = "Every field \u20AC";
const QString full = QString(80, u'N');
const QString oddTeam = "Team: A/2 -..";
const QString oddTeamFile = "Team-3 A-42 ---9-9.grp";

ContactRecord fullContact() {
  ContactRecord contact = {
      full, u'+' + QString(19, u'1'), "N", "Y", u'+' + QString(19, u'2'), QString(60, u'e'), {}};
  for (std::size_t i = 0; i < contact.extra.size(); ++i)
    contact.extra[i] = QString(40, QChar(u'a' + static_cast<int>(i)));
  return contact;
}

ContactRecord everyContact() {
  return {every,
          "+61491570156",
          "Y",
          "Y",
          "+61290000000",
          "every@example.org",
          {"one", "two", "three", "four", "five", "six"}};
}

ContactRecord zoeContact() {
  ContactRecord contact = {zoe, "+447700900025", "Y", "N", {}, "zoe@example.org", {}};
  contact.extra[0] = "Oslo";
  return contact;
}

bool operator==(const ContactRecord& a, const ContactRecord& b) {
  return packContact(a) == packContact(b) && a.name == b.name && a.email == b.email && a.phone == b.phone &&
         a.fax == b.fax && a.extra == b.extra;
}

struct GoldenFiles : AddressBookFixture {
  void SetUp() override {
    for (const QString& name : QDir(golden_).entryList(QDir::Files))
      ASSERT_TRUE(QFile::copy(golden_ + name, filePath(name)));
    ASSERT_TRUE(loadAll(book_));
  }
  [[nodiscard]] QByteArray goldenRecord(const QString& file, int number, int size) const {
    return readBytes(golden_ + file).mid(number * size, size);
  }

  const QString golden_ = QStringLiteral(GOLDEN_FOLDER "/");
};

TEST_F(GoldenFiles, areReadCorrectly) {
  EXPECT_EQ(book_.contacts().size(), 7U);
  EXPECT_TRUE(*book_.findContact(zoe) == zoeContact());
  EXPECT_TRUE(*book_.findContact(every) == everyContact());
  EXPECT_TRUE(*book_.findContact(full) == fullContact());
  EXPECT_EQ(book_.findContact("Odd state")->phone, "+447700900001");
  EXPECT_EQ(book_.findContact("Rubbish")->phone, "+447700900002");
  EXPECT_EQ(book_.findContact(zoeInSmall)->fax, "+447700900003");
  EXPECT_EQ(book_.findContact("Twice")->phone, "+447700900005");
  EXPECT_FALSE(book_.findContact("Gone"));

  EXPECT_EQ(book_.groups().size(), 3U);
  EXPECT_EQ(book_.findGroup(oddTeam)->members().size(), 3U);
  for (const QString& name : {zoe, full, u"Rubbish"_s})
    EXPECT_EQ(book_.findGroup(oddTeam)->members().at(name), book_.findContact(name));
  EXPECT_TRUE(book_.findGroup("a%")->contains(every));
  EXPECT_THAT(notifier_.popLines(), IsEmpty());
}

TEST_F(GoldenFiles, readingChangesNoByte) {
  for (const QString& name : QDir(golden_).entryList(QDir::Files))
    EXPECT_EQ(readBytes(filePath(name)), readBytes(golden_ + name)) << qPrintable(name);
}

TEST_F(GoldenFiles, sameContactsAndMembersHaveTheSameBytes) {
  AddressBook copy(filePath("copy"), database_);
  ASSERT_TRUE(QDir(folder_.path()).mkdir("copy"));
  EXPECT_TRUE(copy.saveContact(zoeContact()) && copy.saveContact(everyContact()) &&
              copy.saveContact(fullContact()));
  EXPECT_TRUE(copy.createGroup(oddTeam, {zoe, full}));
  const auto contacts = [this](int number) { return goldenRecord(contactsFile, number, 512); };
  const auto members = [this](int number) { return goldenRecord(oddTeamFile, number, 256); };
  EXPECT_EQ(readBytes(filePath("copy/" + contactsFile)), contacts(0) + contacts(2) + contacts(3));
  EXPECT_EQ(readBytes(filePath("copy/" + oddTeamFile)), members(0) + members(2));
}

TEST(ContactFileFormat, longValuesAreTruncatedToTheirFields) {
  ContactRecord contact = {QString(81, u'n'), QString(21, u'1'), "Yes", {},
                           QString(21, u'2'), QString(61, u'e'), {}};
  for (QString& extra : contact.extra) extra = QString(41, u'x');
  const QByteArray expected = "\x01" + QByteArray(80, 'n') + QByteArray(60, 'e') + QByteArray(20, '1') +
                              QByteArray(20, '2') + QByteArray("Y\0", 2) + QByteArray(240, 'x') +
                              QByteArray(89, '\0');
  EXPECT_EQ(packContact(contact), expected);
  EXPECT_EQ(packName(contact.name), QByteArray(80, 'n'));
}

TEST_F(GoldenFiles, changesAffectOnlyTheirBytes) {
  QByteArray contacts = readBytes(golden_ + contactsFile);
  QByteArray members = readBytes(golden_ + oddTeamFile);
  ContactRecord odd = *book_.findContact("Odd state");
  odd.extra[5] = "last";
  EXPECT_TRUE(book_.saveContact(odd));
  contacts.replace(4 * 512 + 383, 4, "last");
  // The group file has a deleted record of this member.
  EXPECT_TRUE(book_.addMember(oddTeam, zoeInSmall));
  members[256] = 1;
  EXPECT_TRUE(book_.deleteContact(zoe));
  contacts[0] = 0;
  members[0] = 0;
  EXPECT_EQ(readBytes(filePath(contactsFile)), contacts);
  EXPECT_EQ(readBytes(filePath(oddTeamFile)), members);
}

}  // namespace
}  // namespace parlexo::test
