// SPDX-License-Identifier: GPL-3.0-or-later
// The address book on failing disks and with unusual file names. All failures also affect root, as which
// tests may run.

#include <sys/stat.h>
#include <unistd.h>

#include "contacts/contact_file_format.h"
#include "tests/contacts/file_size_limit.h"
#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

const QString saving = "16 There was a problem trying to save your contact to the database. Error=";
const QString deleting = "16 There was a problem deleting a contact from your database. Error=";
const QString adding = "16 There was a problem saving your contact to the database group. Error=";
const QString creating =
    "16 There was a problem trying to create your group in the database "
    "Error=[createDb:1 - Can't create the database!]";
const QString connecting =
    "16 There was a problem connecting to the database. Please ensure you can connect to the database "
    "storage location. Error=";
const QString removing = "16 There was a problem trying to delete your group from the database";
const QString readOpenError = "[readAllItems:2 - Database open error!]";

const QString known = "Known";
const QString fresh = "Fresh";
const QString circle = "Circle";

struct AddressBookOnDisk : AddressBookFixture {
  void SetUp() override {
    ASSERT_TRUE(save(known) && report(book_.createGroup(circle, {known})));
    contactBytes_ = fileBytes(contactsFile);
    memberBytes_ = fileBytes(circleFile_);
  }

  bool save(const QString& name, const QString& phone = {}) {
    return report(book_.saveContact({name, phone, {}, {}, {}, {}, {}}));
  }
  QByteArray fileBytes(const QString& name) const { return readBytes(filePath(name)); }
  QStringList popMessages() { return notifier_.popLines(); }
  // Loads the folder like a program that starts now.
  bool startsAgain(const QString& folder) {
    indexes_.dropAllItemIndexes();
    next_ = std::make_unique<AddressBook>(folder, nextDatabase_);
    return loadAll(*next_);
  }

  const QString circleFile_ = "Circle.grp";
  QByteArray contactBytes_;
  QByteArray memberBytes_;
  ItemIndexCache indexes_;
  ItemDatabase nextDatabase_{indexes_, waiter_};
  std::unique_ptr<AddressBook> next_;
};

TEST_F(AddressBookOnDisk, fullDiskRejectsNewContactsAndLosesNothing) {
  {
    // Room for half a contact; the shorter group file can still grow.
    const FileSizeLimit limit(contactRecordSize + contactRecordSize / 2);
    EXPECT_FALSE(save(fresh));
    EXPECT_TRUE(save(known, "+1")) << "a change needs no room";
  }
  EXPECT_THAT(popMessages(), ElementsAre(saving + "[writeItem:13 - Can't append item to the database!]"));
  EXPECT_TRUE(book_.findContact(fresh)) << "memory keeps it";
  EXPECT_EQ(fileBytes(contactsFile).size(), contactRecordSize);
  EXPECT_FALSE(report(book_.addMember(circle, fresh))) << "there is room again, but it has no record";
  EXPECT_THAT(popMessages(), ElementsAre(adding + "[writeItem:13 - Can't append item to the database!]"));
  EXPECT_EQ(fileBytes(circleFile_), memberBytes_);
  EXPECT_TRUE(save(fresh)) << "its membership is written as well";
  EXPECT_TRUE(startsAgain(folder_.path()));
  EXPECT_EQ(next_->findGroup(circle)->members().size(), 2U);
}

TEST_F(AddressBookOnDisk, missingFolderIsReportedAndMayReappear) {
  const QString away = folder_.path() + " away";
  ASSERT_TRUE(QDir().rename(folder_.path(), away));
  EXPECT_FALSE(save(known));
  EXPECT_FALSE(report(book_.createGroup("New")));
  EXPECT_FALSE(report(book_.addMember(circle, known)));
  EXPECT_FALSE(report(book_.removeMember(circle, known)));
  EXPECT_FALSE(report(book_.deleteGroup(circle)));
  EXPECT_FALSE(book_.findGroup(circle)) << "memory lets go of it";
  EXPECT_THAT(popMessages(),
              ElementsAre(saving + "[writeItem:3 - Database open error!]", creating,
                          adding + "[writeItem:3 - Database open error!]",
                          deleting + "[deleteItem:2 - Database access share error!]", removing));
  EXPECT_FALSE(startsAgain(folder_.path()));
  EXPECT_EQ(popMessages().last(), connecting + readOpenError);
  ASSERT_TRUE(QDir().rename(away, folder_.path()));
  EXPECT_TRUE(save(fresh) && startsAgain(folder_.path()));
  EXPECT_TRUE(next_->findContact(known) && next_->findContact(fresh));
  EXPECT_THAT(popMessages(), IsEmpty());
}

// Drops root privileges for a scope, as permissions do not apply to root.
class Unprivileged {
 public:
  Unprivileged() : before_(::geteuid()) {
    if (before_ == 0) become(nobody);
  }
  ~Unprivileged() {
    if (before_ == 0) become(before_);
  }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;

 private:
  static constexpr uid_t nobody = 65534;

  static void become(uid_t user) { EXPECT_EQ(::seteuid(user), 0); }

  uid_t before_;
};

void allow(const QString& path, mode_t permissions) {
  ASSERT_EQ(::chmod(qPrintable(path), permissions), 0);
}

TEST_F(AddressBookOnDisk, readOnlyFolderIsReadButNotChanged) {
  allow(filePath(contactsFile), 0444);
  allow(filePath(circleFile_), 0666);
  allow(folder_.path(), 0555);
  {
    const Unprivileged user;
    if (!QFile(filePath(circleFile_)).open(QIODevice::ReadOnly))
      GTEST_SKIP() << "the folder can't be entered";
    EXPECT_TRUE(startsAgain(folder_.path()));
    EXPECT_TRUE(next_->findGroup(circle)->contains(known));
    EXPECT_FALSE(save(known));
    EXPECT_FALSE(report(book_.createGroup("New")));
    EXPECT_FALSE(report(book_.deleteGroup(circle))) << "its file can be written, but not be removed";
    EXPECT_FALSE(report(book_.deleteContact(known)));
  }
  EXPECT_THAT(popMessages(), ElementsAre("0 Can't create the personal contacts database: " +
                                             filePath("My Personal Contacts.grp") +
                                             " Error=[createDb:1 - Can't create the database!]",
                                         saving + "[writeItem:3 - Database open error!]", creating, removing,
                                         deleting + "[deleteItem:2 - Database access share error!]"));
  allow(folder_.path(), 0700);
  EXPECT_EQ(fileBytes(contactsFile), contactBytes_);
  EXPECT_EQ(fileBytes(circleFile_), memberBytes_);
}

TEST_F(AddressBookOnDisk, unreadableFilesEndTheLoading) {
  allow(folder_.path(), 0777);
  for (const QString& file : {circleFile_, contactsFile}) {
    allow(filePath(file), 0);
    const Unprivileged user;
    EXPECT_FALSE(startsAgain(folder_.path()));
    EXPECT_THAT(popMessages(), ElementsAre(connecting + readOpenError)) << qPrintable(file);
  }
}

TEST_F(AddressBookOnDisk, groupsWithUnusualNamesAreRestored) {
  const struct {
    QString group;
    QString file;
    QString readBack = group;
  } cases[] = {
      {".", "-9.grp"},
      {"..", "-9-9.grp"},
      {"../x", "-9-9-4x.grp"},
      {"%\\:/*?\"'.<>", "-1-2-3-4-5-6-7-8-9-A-B.grp"},
      {"--", "----.grp"},
      {" two  blanks ", " two  blanks .grp"},
      {"Zo\u00EB \u4E2D", "Zo\u00EB \u4E2D.grp"},
      {".grp", "-9grp.grp"},
      {QString(), ".grp"},
      {QString(251, u'g'), QString(251, u'g') + ".grp"},
      {"a-1", "a--1.grp", "a%"},
  };
  for (const auto& each : cases) {
    EXPECT_TRUE(report(book_.createGroup(each.group, {known}))) << qPrintable(each.group);
    EXPECT_EQ(fileBytes(each.file), packMember(known)) << qPrintable(each.file);
  }
  EXPECT_TRUE(startsAgain(folder_.path()));
  for (const auto& each : cases) {
    const GroupFile* group = next_->findGroup(each.readBack);
    EXPECT_TRUE(group && group->contains(known)) << qPrintable(each.readBack);
  }
  EXPECT_THAT(popMessages(), IsEmpty());
}

TEST_F(AddressBookOnDisk, groupNamesWithoutAFileNameAreRejected) {
  for (const QString& name : {QString(252, u'g'), QString(130, u'.'), u"a"_s + QChar(u'\0')}) {
    EXPECT_FALSE(report(book_.createGroup(name, {known})));
    EXPECT_THAT(popMessages(), ElementsAre(creating, adding + readOpenError));
    EXPECT_TRUE(book_.findGroup(name)->contains(known));
    EXPECT_FALSE(report(book_.deleteGroup(name)));
    EXPECT_THAT(popMessages(), ElementsAre(removing));
  }
}

}  // namespace
}  // namespace parlexo::test
