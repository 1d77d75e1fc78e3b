#include "contacts/samples/sample_contacts.h"

#include "tests/contacts/store_fixture.h"

namespace parlexo {
namespace {

class SampleFolder : public AddressBookFixture {};

TEST_F(SampleFolder, loadsBackWholeAndIsNotOverwritten) {
  const QString folder = pathOf(QStringLiteral("new/contacts"));
  ASSERT_EQ(writeSampleFolder(folder, 300, 12), QString());
  AddressBook book(folder, database_, notifier_);
  EXPECT_TRUE(book.loadAll(progress_));
  EXPECT_EQ(book.contacts().size(), 300U);
  EXPECT_EQ(book.groups().size(), 13U);
  EXPECT_EQ(book.findGroup(QStringLiteral("Customers"))->members().size(), 150U);
  EXPECT_EQ(book.findGroup(QStringLiteral("My Personal Contacts"))->members().size(), 8U);
  EXPECT_TRUE(notifier_.shown.empty());

  EXPECT_TRUE(writeSampleFolder(folder, 5, 0).contains(QStringLiteral("already")));
  EXPECT_EQ(readBytes(folder + QStringLiteral("/All Contacts.all_grp")).size(), 300 * 512);
}

}  // namespace
}  // namespace parlexo
