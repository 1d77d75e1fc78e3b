// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/samples/sample_contacts.h"

#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

class SampleFolder : public AddressBookFixture {};

TEST_F(SampleFolder, isRestoredAndNotOverwritten) {
  const QString folder = filePath(u"new/contacts"_s);
  ASSERT_EQ(writeSampleFolder(folder, 300, 12), QString());
  AddressBook book(folder, database_);
  EXPECT_TRUE(loadAll(book));
  EXPECT_EQ(book.contacts().size(), 300U);
  EXPECT_EQ(book.groups().size(), 13U);
  EXPECT_EQ(book.findGroup(u"Customers"_s)->members().size(), 150U);
  EXPECT_EQ(book.findGroup(u"My Personal Contacts"_s)->members().size(), 8U);
  EXPECT_TRUE(notifier_.shown.empty());

  EXPECT_TRUE(writeSampleFolder(folder, 5, 0).contains(u"already"_s));
  EXPECT_EQ(readBytes(folder + u"/All Contacts.all_grp"_s).size(), 300 * 512);
}

}  // namespace
}  // namespace parlexo::test
