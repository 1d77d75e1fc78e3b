// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/address_book.h"

#include "contacts/contact_file_format.h"
#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

ContactRecord contact(const QString& name, const QString& phone = {}) {
  return {name, phone, {}, {}, {}, {}, {}};
}

const QString ann = "Ann";
const QString ben = "Ben";
const QString team = "Team 1/2";

struct AddressBookChanges : AddressBookFixture {
  void SetUp() override {
    EXPECT_TRUE(book_.saveContact(contact(ann)) && book_.saveContact(contact(ben)));
    EXPECT_TRUE(book_.createGroup(team, {ann, ben, "Nobody"}));
  }
  QByteArray fileBytes(const QString& name) const { return readBytes(filePath(name)); }

  const QString teamFile_ = "Team 1-42.grp";
};

TEST_F(AddressBookChanges, ofAKnownContactUpdateItInPlace) {
  const ContactRecord* before = book_.findContact(ann);
  EXPECT_TRUE(book_.saveContact(contact(ann, "+1")));
  EXPECT_EQ(book_.findContact(ann), before);
  EXPECT_EQ(book_.findGroup(team)->members().at(ann)->phone, "+1");
  EXPECT_EQ(fileBytes(contactsFile), packContact(contact(ann, "+1")) + packContact(contact(ben)));
}

TEST_F(AddressBookChanges, deletedContactIsRemovedFromEveryGroup) {
  EXPECT_TRUE(book_.createGroup("Other", {ben}));
  EXPECT_TRUE(book_.deleteContact(book_.findGroup(team)->members().find(ann)->first));
  EXPECT_FALSE(book_.findContact(ann));
  EXPECT_FALSE(book_.findGroup(team)->contains(ann));
  EXPECT_EQ(fileBytes(contactsFile), deletedRecord(packContact(contact(ann))) + packContact(contact(ben)));
  EXPECT_EQ(fileBytes(teamFile_), deletedRecord(packMember(ann)) + packMember(ben));
  EXPECT_EQ(fileBytes("Other.grp"), packMember(ben));
  const quint64 revision = book_.revision();
  EXPECT_TRUE(book_.deleteContact("Nobody")) << "an unknown name is a no-op";
  EXPECT_EQ(book_.revision(), revision);
}

TEST_F(AddressBookChanges, renamedContactStaysInItsGroups) {
  const QString anne = "Anne";
  EXPECT_TRUE(book_.renameContact(ann, contact(anne)));
  EXPECT_FALSE(book_.findContact(ann));
  EXPECT_EQ(book_.findGroup(team)->members().at(anne), book_.findContact(anne));
  EXPECT_FALSE(book_.findGroup(team)->contains(ann));
  EXPECT_EQ(fileBytes(contactsFile), deletedRecord(packContact(contact(ann))) + packContact(contact(ben)) +
                                         packContact(contact(anne)));
  EXPECT_EQ(fileBytes(teamFile_), deletedRecord(packMember(ann)) + packMember(ben) + packMember(anne));
  const QString cut(nameWidth, u'x');
  EXPECT_TRUE(book_.saveContact(contact(cut + "1")) && book_.addMember(team, cut + "1"));
  EXPECT_TRUE(book_.renameContact(cut + "1", contact(cut + "2")));
  EXPECT_TRUE(fileBytes(contactsFile).endsWith(packContact(contact(cut)))) << "the same record";
  EXPECT_TRUE(fileBytes(teamFile_).endsWith(packMember(cut)));
}

TEST_F(AddressBookChanges, removedMemberReusesItsRecord) {
  EXPECT_TRUE(book_.removeMember(team, ann));
  EXPECT_EQ(fileBytes(teamFile_), deletedRecord(packMember(ann)) + packMember(ben));
  EXPECT_TRUE(book_.addMember(team, ann));
  EXPECT_EQ(fileBytes(teamFile_), packMember(ann) + packMember(ben));
  EXPECT_TRUE(book_.addMember(team, "Nobody"));
  EXPECT_FALSE(book_.findGroup(team)->contains("Nobody"));
  EXPECT_TRUE(book_.addMember("No group", ann));
  EXPECT_TRUE(book_.removeMember("No group", ann));
  EXPECT_FALSE(book_.findGroup("No group"));
}

}  // namespace
}  // namespace parlexo::test
