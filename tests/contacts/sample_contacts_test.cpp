#include "contacts/sample_contacts.h"

#include <QSet>

#include "base/code_page.h"
#include "tests/contacts/store_fixture.h"

namespace parlexo {
namespace {

class SampleFolder : public AddressBookFixture {};

TEST(SampleContacts, allDifferAndFitTheirFields) {
  constexpr int count = 5000;
  QSet<QString> names;
  QSet<QString> phones;
  for (const ContactRecord& contact : sampleContacts(count)) {
    names.insert(contact.name);
    EXPECT_TRUE(contact.phone.isEmpty() || !phones.contains(contact.phone)) << qPrintable(contact.phone);
    phones.insert(contact.phone);
    EXPECT_TRUE(fitsCodePage(contact.name) && contact.name.size() <= 80);
    EXPECT_TRUE(contact.phone.size() <= 20 && contact.fax.size() <= 20 && contact.email.size() <= 60);
    EXPECT_FALSE(contact.phone.isEmpty() && contact.fax.isEmpty());
  }
  EXPECT_EQ(names.size(), count);
}

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
