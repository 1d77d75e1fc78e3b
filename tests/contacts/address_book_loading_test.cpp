#include <optional>

#include <QDir>
#include <gmock/gmock.h>

#include "contacts/contact_file_format.h"
#include "contacts/sample_contacts.h"
#include "contacts/shared_file.h"
#include "tests/contacts/store_fixture.h"

namespace parlexo {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

QByteArray contactBytes(const QString& name, const QString& phone = {}) {
  ContactRecord record;
  record.name = name;
  record.phone = phone;
  return packContact(record);
}

class AddressBookLoading : public AddressBookFixture {
 protected:
  void put(const QString& fileName, const QByteArray& bytes) { writeBytes(pathOf(fileName), bytes); }
  QStringList groupNames() const {
    QStringList names;
    for (const auto& [name, group] : book_.groups()) names.append(name);
    return names;
  }
};

TEST_F(AddressBookLoading, ofEmptyFolderYieldsThePersonalGroup) {
  EXPECT_TRUE(book_.loadAll(progress_));
  EXPECT_THAT(groupNames(), ElementsAre(QStringLiteral("My Personal Contacts")));
  EXPECT_TRUE(book_.contacts().empty());
  EXPECT_EQ(readBytes(pathOf(QStringLiteral("My Personal Contacts.grp"))), "");
  EXPECT_EQ(readBytes(pathOf(contactsFile)), "");
  EXPECT_THAT(progress_.texts, ElementsAre(QStringLiteral("Loading all Contacts..."),
                                           QStringLiteral("Loading Group \"My Personal Contacts\"...")));
  EXPECT_THAT(notifier_.takeLines(), IsEmpty());
}

TEST_F(AddressBookLoading, skipsDeletedContactsAndTakesTheLaterOfTwo) {
  put(contactsFile, contactBytes(QStringLiteral("Ann"), QStringLiteral("+1")) +
                        deletedRecord(contactBytes(QStringLiteral("Ben"))) +
                        contactBytes(QStringLiteral("Ann"), QStringLiteral("+2")));
  EXPECT_TRUE(book_.loadAll(progress_));
  EXPECT_EQ(book_.contacts().size(), 1U);
  EXPECT_EQ(book_.findContact(QStringLiteral("Ann"))->phone, QStringLiteral("+2"));
}

TEST_F(AddressBookLoading, tellsTheCountAfterEveryTwentieth) {
  ASSERT_EQ(writeSampleFolder(folder_.path(), 41, 0), QString());
  EXPECT_TRUE(book_.loadAll(progress_));
  EXPECT_THAT(progress_.texts, ElementsAre(QStringLiteral("Loading all Contacts..."),
                                           QStringLiteral("Loading all Contacts (20 Loaded)..."),
                                           QStringLiteral("Loading all Contacts (40 Loaded)..."),
                                           QStringLiteral("Loading Group \"My Personal Contacts\"...")));
}

TEST_F(AddressBookLoading, findsGroupFilesAloneAndDecodesTheirNames) {
  put(contactsFile, contactBytes(QStringLiteral("Ann")));
  put(QStringLiteral("a-9b.grp"), packMember(QStringLiteral("Ann")));
  put(QStringLiteral("a--1.grp"), {});
  put(QStringLiteral("notes.txt"), packMember(QStringLiteral("Ann")));
  put(QStringLiteral("old.grp.bak"), packMember(QStringLiteral("Ann")));
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("folder.grp")));
  EXPECT_TRUE(book_.loadAll(progress_));
  EXPECT_THAT(groupNames(), ElementsAre(QStringLiteral("My Personal Contacts"), QStringLiteral("a%"),
                                        QStringLiteral("a.b")));
  EXPECT_EQ(book_.findGroup(QStringLiteral("a.b"))->members().at(QStringLiteral("Ann")),
            book_.findContact(QStringLiteral("Ann")));
  EXPECT_THAT(progress_.texts, Contains(QStringLiteral("Loading Group \"a.b\"...")));
}

TEST_F(AddressBookLoading, marksMembersWithoutContactAsDeleted) {
  const QByteArray gone = packMember(QStringLiteral("Gone \u20AC"));
  const QByteArray ann = packMember(QStringLiteral("Ann"));
  const QByteArray wrongCase = packMember(QStringLiteral("ann"));
  put(contactsFile, contactBytes(QStringLiteral("Ann")));
  put(QStringLiteral("Team.grp"), gone + ann + wrongCase);
  EXPECT_TRUE(book_.loadAll(progress_));
  EXPECT_EQ(readBytes(pathOf(QStringLiteral("Team.grp"))),
            deletedRecord(gone) + ann + deletedRecord(wrongCase));
  EXPECT_EQ(book_.findGroup(QStringLiteral("Team"))->members().size(), 1U);
  EXPECT_THAT(notifier_.takeLines(), IsEmpty());
}

TEST_F(AddressBookLoading, tellsOfEachMemberThatCannotBeCleanedAwayAndGoesOn) {
  const QByteArray orphans = packMember(QStringLiteral("Gone")) + packMember(QStringLiteral("Lost"));
  const QString team = QStringLiteral("Team.grp");
  put(team, orphans);
  put(QStringLiteral("Zebras.grp"), packMember(QStringLiteral("Gone")));
  std::optional<SharedFile> otherReader(std::in_place);
  ASSERT_EQ(otherReader->open(pathOf(team), SharedFile::Mode::Read), SharedFile::OpenResult::Opened);
  // The other reader leaves while the second member waits.
  waiter_.onPause = [&] {
    if (notifier_.shown.size() == 1) otherReader.reset();
  };
  EXPECT_TRUE(book_.loadAll(progress_));
  EXPECT_EQ(readBytes(pathOf(team)),
            orphans.first(memberRecordSize) + deletedRecord(packMember(QStringLiteral("Lost"))));
  EXPECT_EQ(readBytes(pathOf(QStringLiteral("Zebras.grp"))),
            deletedRecord(packMember(QStringLiteral("Gone"))));
  EXPECT_THAT(notifier_.takeLines(),
              ElementsAre(QStringLiteral("16 There was a problem deleting a contact from your database. "
                                         "Error=[deleteItem:1 - Database access share error!]")));
}

TEST_F(AddressBookLoading, cutNamesMeetAgainAtTheNextStart) {
  ContactRecord longNamed;
  longNamed.name = QString(90, u'n');
  EXPECT_TRUE(book_.saveContact(longNamed) && book_.createGroup(QStringLiteral("G"), {longNamed.name}));
  AddressBook next(folder_.path(), database_, notifier_);
  EXPECT_TRUE(next.loadAll(progress_));
  EXPECT_TRUE(next.findContact(QString(80, u'n')));
  EXPECT_TRUE(next.findGroup(QStringLiteral("G"))->contains(QString(80, u'n')));
}

TEST_F(AddressBookLoading, ofMissingFolderTellsThePersonalGroupFirst) {
  const QString folder = folder_.filePath(QStringLiteral("missing"));
  AddressBook book(folder, database_, notifier_);
  EXPECT_FALSE(book.loadAll(progress_));
  ASSERT_EQ(notifier_.shown.size(), 2);
  EXPECT_EQ(notifier_.takeLines().first(),
            QStringLiteral("0 Can't create the personal contacts database: ") +
                QDir::toNativeSeparators(folder + QStringLiteral("/My Personal Contacts.grp")) +
                QStringLiteral(" Error=[createDb:1 - Can't create the database!]"));
}

}  // namespace
}  // namespace parlexo
