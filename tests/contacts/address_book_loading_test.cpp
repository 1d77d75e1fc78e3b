// SPDX-License-Identifier: GPL-3.0-or-later

#include "contacts/contact_file_format.h"
#include "contacts/samples/sample_contacts.h"
#include "contacts/shared_file.h"
#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

QByteArray contactBytes(const QString& name, const QString& phone = {}) {
  return packContact({name, phone, {}, {}, {}, {}, {}});
}

struct AddressBookLoading : AddressBookFixture {
  void put(const QString& fileName, const QByteArray& bytes) { writeBytes(filePath(fileName), bytes); }
  QStringList groupNames() const {
    QStringList names;
    for (const auto& [name, group] : book_.groups()) names.append(name);
    return names;
  }
};

TEST_F(AddressBookLoading, ofEmptyFolderYieldsThePersonalGroup) {
  EXPECT_TRUE(loadAll(book_));
  EXPECT_THAT(groupNames(), ElementsAre("My Personal Contacts"));
  EXPECT_TRUE(book_.contacts().empty());
  EXPECT_EQ(readBytes(filePath("My Personal Contacts.grp")), "");
  EXPECT_EQ(readBytes(filePath(contactsFile)), "");
  EXPECT_THAT(progress_.texts,
              ElementsAre("Loading all Contacts...", "Loading Group \"My Personal Contacts\"..."));
  EXPECT_THAT(notifier_.popLines(), IsEmpty());
}

TEST_F(AddressBookLoading, showsTheCountAfterEveryTwentiethContact) {
  ASSERT_EQ(writeSampleFolder(folder_.path(), 41, 0), QString());
  EXPECT_TRUE(loadAll(book_));
  EXPECT_THAT(progress_.texts, ElementsAre("Loading all Contacts...", "Loading all Contacts (20 Loaded)...",
                                           "Loading all Contacts (40 Loaded)...",
                                           "Loading Group \"My Personal Contacts\"..."));
}

TEST_F(AddressBookLoading, loadsOnlyGroupFilesAndDecodesTheirNames) {
  put(contactsFile, contactBytes("Ann"));
  put("a-9b.grp", packMember("Ann"));
  put("a--1.grp", {});
  put("notes.txt", packMember("Ann"));
  put("old.grp.bak", packMember("Ann"));
  ASSERT_TRUE(QDir(folder_.path()).mkdir("folder.grp"));
  EXPECT_TRUE(loadAll(book_));
  EXPECT_THAT(groupNames(), ElementsAre("My Personal Contacts", "a%", "a.b"));
  EXPECT_EQ(book_.findGroup("a.b")->members().at("Ann"), book_.findContact("Ann"));
  EXPECT_THAT(progress_.texts, Contains("Loading Group \"a.b\"..."));
}

TEST_F(AddressBookLoading, marksMembersWithoutContactAsDeleted) {
  const QByteArray gone = packMember("Gone \u20AC");
  const QByteArray ann = packMember("Ann");
  const QByteArray wrongCase = packMember("ann");
  put(contactsFile, contactBytes("Ann"));
  put("Team.grp", gone + ann + wrongCase);
  EXPECT_TRUE(loadAll(book_));
  EXPECT_EQ(readBytes(filePath("Team.grp")), deletedRecord(gone) + ann + deletedRecord(wrongCase));
  EXPECT_EQ(book_.findGroup("Team")->members().size(), 1U);
  EXPECT_THAT(notifier_.popLines(), IsEmpty());
}

TEST_F(AddressBookLoading, membersAddedByAnotherUserMeanwhileStay) {
  const QByteArray gone = packMember("Gone");
  put(contactsFile, contactBytes("Ann"));
  put("Team.grp", gone + packMember("Back") + gone);
  ItemIndexCache otherCache;
  ItemDatabase otherDatabase(otherCache, waiter_);
  AddressBook colleague(folder_.path(), otherDatabase);
  // A change between reading contacts and group, and one during the clean-up of the group.
  progress_.onText = [&](const QString& text) {
    if (!text.contains("Team")) return;
    EXPECT_TRUE(colleague.saveContact({"New", "+1", {}, {}, {}, {}, {}}));
    EXPECT_TRUE(colleague.createGroup("Team", {"New"}));
    waiter_.onOpening = [&, openings = 0]() mutable {
      if (++openings != 3) return;
      EXPECT_TRUE(colleague.saveContact({"Back", {}, {}, {}, {}, {}, {}}));
    };
  };
  EXPECT_TRUE(loadAll(book_));
  EXPECT_EQ(readBytes(filePath("Team.grp")),
            deletedRecord(gone) + packMember("Back") + deletedRecord(gone) + packMember("New"));
  EXPECT_EQ(book_.findContact("New")->phone, "+1");
  EXPECT_TRUE(book_.findGroup("Team")->contains("New") && book_.findGroup("Team")->contains("Back"));
}

TEST_F(AddressBookLoading, groupIsChangedAndDeletedInAllItsFiles) {
  put(contactsFile, contactBytes("Ann") + contactBytes("Ben"));
  put("Team--A.grp", packMember("Ann"));
  put("Team-A.grp", packMember("Ann"));
  const QString team = "Team<";
  EXPECT_TRUE(loadAll(book_));
  EXPECT_TRUE(book_.removeMember(team, "Ann") && book_.addMember(team, "Ben"));
  EXPECT_EQ(readBytes(filePath("Team--A.grp")), deletedRecord(packMember("Ann")) + packMember("Ben"));
  EXPECT_EQ(readBytes(filePath("Team-A.grp")), deletedRecord(packMember("Ann")));
  EXPECT_TRUE(book_.deleteGroup(book_.findGroup(team)->name()));
  AddressBook next(folder_.path(), database_);
  EXPECT_TRUE(loadAll(next));
  EXPECT_EQ(next.groups().size(), 1U) << "only the personal one";
}

TEST_F(AddressBookLoading, failedCleanUpIsReportedOnceAndLoadingContinues) {
  const QByteArray orphans = packMember("Gone") + packMember("Lost");
  put("Team.grp", orphans);
  put("Zebras.grp", packMember("Gone"));
  SharedFile otherReader;
  ASSERT_EQ(otherReader.open(filePath("Team.grp"), SharedFile::Mode::Read), SharedFile::OpenResult::Opened);
  EXPECT_TRUE(loadAll(book_));
  EXPECT_EQ(readBytes(filePath("Team.grp")), orphans);
  EXPECT_EQ(readBytes(filePath("Zebras.grp")), deletedRecord(packMember("Gone")));
  EXPECT_THAT(notifier_.popLines(),
              ElementsAre(u"16 There was a problem deleting a contact from your database. "
                          "Error=[deleteItem:1 - Database access share error!]"_s));
}

TEST_F(AddressBookLoading, truncatedNamesMatchAfterARestart) {
  const QString longName(90, u'n');
  EXPECT_TRUE(book_.saveContact({longName, {}, {}, {}, {}, {}, {}}) && book_.createGroup("G", {longName}));
  AddressBook next(folder_.path(), database_);
  EXPECT_TRUE(loadAll(next));
  EXPECT_TRUE(next.findContact(QString(80, u'n')));
  EXPECT_TRUE(next.findGroup("G")->contains(QString(80, u'n')));
}

}  // namespace
}  // namespace parlexo::test
