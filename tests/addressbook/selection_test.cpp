#include <algorithm>
#include <iterator>
#include <vector>

#include <QStringList>
#include <gmock/gmock.h>

#include "addressbook/core/contact_selection.h"
#include "addressbook/core/selection_lists.h"
#include "contacts/group_file.h"
#include "tests/addressbook/sample_book.h"

namespace parlexo {
namespace {

using test::FivePeople;
using test::SampleBook;

QStringList namesOf(const ContactSelection& selection) {
  QStringList names;
  for (const ContactRecord* contact : selection) names << contact->name;
  return names;
}

QStringList listedNames(const SelectionLists& lists) {
  QStringList names;
  for (int row = 0; row < lists.contactCount(); ++row) names << lists.contact(row).name;
  return names;
}

int rowOfGroup(const SelectionLists& lists, const QString& name) {
  for (int row = 0; row < lists.groupCount(); ++row) {
    if (lists.group(row).name() == name) return row;
  }
  return -1;
}

ContactSelection pick(const SampleBook& sample, const QStringList& names) {
  ContactSelection::Contacts contacts;
  for (const QString& name : names) contacts.push_back(sample.book().findContact(name));
  return ContactSelection(contacts);
}

TEST(SelectionLists, modeDecidesWhoIsListed) {
  const struct {
    const char* mode;
    QStringList listed;
  } cases[] = {
      {"All", {"Ann", "bob", "Cid", "Dan", "eva"}},
      {"SMS", {"Ann", "bob"}},
      {"Media", {"Ann", "eva"}},
      {"Fax", {"Cid"}},
      {"Phone", {"Ann", "eva"}},
      {"all", {}},
      {"sms", {}},
      {"fax", {}},
      {"SMS ", {}},
      {"", {}},
  };
  const FivePeople sample;
  for (const auto& [mode, listed] : cases) {
    EXPECT_EQ(listedNames(SelectionLists(sample.book(), mode, {})), listed) << mode;
  }
}

TEST(SelectionLists, faxNumbersAreShownHoweverTheModeIsSpelled) {
  EXPECT_TRUE(showsFaxNumbers(u"Fax"));
  EXPECT_TRUE(showsFaxNumbers(u"fAX"));
  EXPECT_FALSE(showsFaxNumbers(u"Phone"));
}

TEST(SelectionLists, bothListsAreSortedWithoutRegardToCase) {
  SampleBook sample;
  for (const char* name :
       {"\u00e9mile", "ann", "Zoe", "Ann", "\u00c9va", "ANN", "bob", "a b", "Stra\u00dfe"}) {
    sample.addContact(QString::fromUtf8(name));
  }
  for (const char* name : {"work", "Home", "alpha"}) sample.addGroup(name);
  const SelectionLists lists(sample.book(), "All", {});
  EXPECT_EQ(listedNames(lists),
            QStringList({"a b", "ANN", "Ann", "ann", "bob", "Stra\u00dfe", "Zoe", "\u00e9mile", "\u00c9va"}));
  EXPECT_EQ(lists.group(0).name(), "alpha");
  EXPECT_EQ(lists.group(1).name(), "Home");
  EXPECT_EQ(lists.group(2).name(), "work");
}

TEST(SelectionLists, groupTicksAndUnticksItsEligibleMembersOnly) {
  const FivePeople sample;
  SelectionLists lists(sample.book(), "Phone", {});
  const int team = rowOfGroup(lists, "Team");
  const RowSpan changed = lists.setGroupTicked(team, true);
  EXPECT_TRUE(lists.isGroupTicked(team));
  EXPECT_FALSE(lists.isGroupTicked(rowOfGroup(lists, "all")));
  EXPECT_EQ(namesOf(lists.tickedContacts()), QStringList({"Ann", "eva"}));
  EXPECT_EQ(lists.tickedCount(), 2) << "contacts, not groups";
  EXPECT_EQ(changed.first, 0);
  EXPECT_EQ(changed.last, 1);
  // The group's new state counts, also for members that were ticked by themselves or by another group.
  lists.setGroupTicked(rowOfGroup(lists, "all"), true);
  lists.setGroupTicked(team, false);
  EXPECT_TRUE(lists.tickedContacts().isEmpty());
  EXPECT_EQ(lists.tickedCount(), 0);
}

TEST(SelectionLists, groupWithoutEligibleMembersChangesNothing) {
  FivePeople sample;
  sample.addGroup("Silent", {"Dan"});
  sample.addGroup("Nobody");
  SelectionLists lists(sample.book(), "SMS", pick(sample, {"Ann"}));
  EXPECT_TRUE(lists.setGroupTicked(rowOfGroup(lists, "Silent"), true).isEmpty());
  EXPECT_TRUE(lists.setGroupTicked(rowOfGroup(lists, "Nobody"), true).isEmpty());
  EXPECT_EQ(namesOf(lists.tickedContacts()), QStringList("Ann"));
}

TEST(ContactSelection, keepsTheListsOrderAndEachNameOnce) {
  FivePeople sample;
  sample.addContact("BOB");
  const ContactSelection selection = pick(sample, {"eva", "bob", "Dan", "BOB", "Ann", "eva"});
  EXPECT_EQ(namesOf(selection), QStringList({"Ann", "BOB", "bob", "Dan", "eva"}));
  EXPECT_TRUE(selection.contains("bob"));
  EXPECT_FALSE(selection.contains("Bob"));
  EXPECT_FALSE(selection.contains("Zed"));
}

}  // namespace
}  // namespace parlexo
