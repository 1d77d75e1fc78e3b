// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <iterator>

#include "addressbook/core/contact_selection.h"
#include "addressbook/core/extra_selection.h"
#include "addressbook/core/selection_lists.h"
#include "addressbook/core/text_search.h"
#include "contacts/group_file.h"
#include "tests/addressbook/sample_book.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

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

TEST(SelectionLists, modeLimitsTheContacts) {
  const Cases<SelectionMode, QStringList> cases = {
      {SelectionMode::All, {"Ann", "bob", "Cid", "Dan", "eva"}},
      {SelectionMode::Sms, {"Ann", "bob"}},
      {SelectionMode::Media, {"Ann", "eva"}},
      {SelectionMode::Fax, {"Cid"}},
      {SelectionMode::Phone, {"Ann", "eva"}},
  };
  const FivePeople sample;
  for (const auto& [mode, listed] : cases)
    EXPECT_EQ(listedNames(SelectionLists(sample.book(), mode, {})), listed) << static_cast<int>(mode);
}

TEST(SelectionLists, bothListsIgnoreCaseInTheirOrder) {
  SampleBook sample;
  for (const char* name :
       {"\u00e9mile", "ann", "Zoe", "Ann", "\u00c9va", "ANN", "bob", "a b", "Stra\u00dfe"}) {
    sample.addContact(QString::fromUtf8(name));
  }
  for (const char* name : {"work", "Home", "alpha"}) sample.addGroup(name);
  const SelectionLists lists(sample.book(), SelectionMode::All, {});
  EXPECT_EQ(listedNames(lists),
            QStringList({"a b", "ANN", "Ann", "ann", "bob", "Stra\u00dfe", "Zoe", "\u00e9mile", "\u00c9va"}));
  EXPECT_EQ(lists.group(0).name(), "alpha");
  EXPECT_EQ(lists.group(1).name(), "Home");
  EXPECT_EQ(lists.group(2).name(), "work");
}

TEST(SelectionLists, groupTicksAndUnticksItsEligibleMembersOnly) {
  const FivePeople sample;
  SelectionLists lists(sample.book(), SelectionMode::Phone, {});
  const int team = rowOfGroup(lists, "Team");
  const RowSpan changed = lists.setGroupTicked(team, true);
  EXPECT_TRUE(lists.isGroupTicked(team));
  EXPECT_FALSE(lists.isGroupTicked(rowOfGroup(lists, "all")));
  EXPECT_EQ(contactNames(lists.tickedContacts()), QStringList({"Ann", "eva"}));
  EXPECT_EQ(lists.tickedCount(), 2) << "contacts, not groups";
  EXPECT_EQ(changed.first, 0);
  EXPECT_EQ(changed.last, 1);
  // Unticking a group also unticks members that were ticked otherwise.
  lists.setGroupTicked(rowOfGroup(lists, "all"), true);
  lists.setGroupTicked(team, false);
  EXPECT_TRUE(lists.tickedContacts().isEmpty());
  EXPECT_EQ(lists.tickedCount(), 0);
}

TEST(ContactSelection, isOrderedAndHasEachNameOnce) {
  FivePeople sample;
  sample.addContact("BOB");
  const ContactSelection selection = pick(sample, {"eva", "bob", "Dan", "BOB", "Ann", "eva"});
  EXPECT_EQ(contactNames(selection), QStringList({"Ann", "BOB", "bob", "Dan", "eva"}));
  EXPECT_TRUE(selection.contains("bob"));
  EXPECT_FALSE(selection.contains("Bob"));
  EXPECT_FALSE(selection.contains("Zed"));
}

class Staff : public SampleBook {
 public:
  Staff() {
    add("Ann", {"Sydney", "Sales", "", "VIP", "", ""});
    add("Bob", {"Perth", "", "", "VIP", "", "x"});
    add("Cid", {"Sydney", "Support", "", "", "", ""});
    add("Dan", {"Hobart", "Sales", "", "vip", "", ""});
  }

 private:
  void add(const QString& name, const Extra& extra) { addContact(name, {}, "N", "N", {}, extra); }
};

QStringList matching(const SampleBook& sample, const ExtraChoice& choice) {
  QStringList names = contactNames(contactsMatching(sample.book(), choice));
  names.sort();
  return names;
}

TEST(ExtraSelection, listsEveryNonEmptyValueOnceAndSorted) {
  const ExtraValues values = distinctExtraValues(Staff().book());
  EXPECT_EQ(values[0], QStringList({"Hobart", "Perth", "Sydney"}));
  EXPECT_EQ(values[1], QStringList({"Sales", "Support"}));
  EXPECT_TRUE(values[2].isEmpty());
  EXPECT_EQ(values[3].size(), 1) << "one spelling stands for the others";
  EXPECT_EQ(values[5], QStringList("x"));
}

TEST(ExtraSelection, combinesFieldsByAndAndValuesByOr) {
  const Cases<const char*, ExtraChoice, QStringList> cases = {
      {"two values of a field", {{{"Sydney", "Perth"}, {}, {}, {}, {}, {}}}, {"Ann", "Bob", "Cid"}},
      {"two fields", {{{"Sydney"}, {"Sales"}, {}, {}, {}, {}}}, {"Ann"}},
      {"one late field alone", {{{}, {}, {}, {"VIP"}, {}, {}}}, {"Ann", "Bob"}},
      {"case counts", {{{}, {}, {}, {"vip"}, {}, {}}}, {"Dan"}},
      {"an empty value never matches", {{{}, {""}, {}, {}, {}, {}}}, {}},
  };
  const Staff sample;
  for (const auto& [what, choice, names] : cases) EXPECT_EQ(matching(sample, choice), names) << what;
}

using Found = std::vector<int>;

/// Four texts of several fields; the second is empty.
TextSearch sampleSearch() {
  TextSearch search;
  search.reserve(4);
  for (const QStringList& fields :
       {QStringList{"Ann Lee", "+6149", "City 1"}, QStringList{}, QStringList{"lee-ann", "", "Stra\u00dfe"},
        QStringList{QString::fromUtf8("\u00c9va"), "+61 49", QString::fromUtf8("\U0001F600 x")}}) {
    for (const QString& field : fields) search.addField(field);
    search.endText();
  }
  return search;
}

TEST(TextSearch, findsTextsWithAllWords) {
  const Cases<QString, Found> cases = {
      {"", {0, 1, 2, 3}},
      {"ANN", {0, 2}},
      {"lee ann", {0, 2}},
      {"  ann   lee ", {0, 2}},
      {"ann lee city", {0}},
      {"+6149", {0}},
      {"49c", {}},  // no match crosses into the next field
      {"lee+61", {}},
      {"city1", {}},
      {QString::fromUtf8("\u00e9V"), {3}},
      {QString::fromUtf8("STRA\u00dfE"), {2}},
      {QString::fromUtf8("\U0001F600"), {3}},
      {QString(1, QChar(0xD83D)), {}},  // half of that character
      {"zzz", {}},
  };
  const TextSearch search = sampleSearch();
  for (const auto& [typed, found] : cases) EXPECT_EQ(search.find(typed), found) << typed.toStdString();
}

}  // namespace
}  // namespace parlexo::test
