// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/recipients.h"

#include "tests/support/test.h"

namespace parlexo::test {
namespace {

ContactRecord contact(const char* name, const char* phone, const char* fax = "") {
  return {name, phone, {}, {}, fax, {}, {}};
}

struct RecipientsTest : testing::Test {
  QStringList select(const std::vector<ContactRecord>& contacts,
                     RecipientNumber which = RecipientNumber::Phone) {
    std::vector<const ContactRecord*> pointers;
    pointers.reserve(contacts.size());
    for (const ContactRecord& record : contacts) pointers.push_back(&record);
    return recipients_.select(pointers, which);
  }

  // Both lists in one readable line.
  [[nodiscard]] std::string lists() const {
    return (recipients_.displayList() + u" | "_s + recipients_.numbersList()).toStdString();
  }

  Recipients recipients_;
  const std::vector<ContactRecord> three_{contact("Ann", "+1"), contact("Lee, Bob", "+2"),
                                          contact("Cy", "+1")};
};

TEST_F(RecipientsTest, selectionReplacesBothListsAndRejectsNumbersWithoutPlus) {
  EXPECT_TRUE(select(three_).isEmpty());
  const QStringList rejected = select({contact("Ann", "+61491570156"), contact("Local", "0491570156"),
                                       contact("None", ""), contact("Bob", "+60312345678")});
  EXPECT_EQ(rejected, QStringList({"Local", "None"}));
  EXPECT_EQ(lists(), "Ann [+61491570156],Bob [+60312345678] | +61491570156,+60312345678");
  EXPECT_EQ(select({contact("Local", "1")}), QStringList({"Local"}));
  EXPECT_EQ(lists(), " | ");
}

TEST_F(RecipientsTest, removalUpdatesBothLists) {
  select(three_);
  recipients_.remove({2, 1, 1, -1, 7});
  EXPECT_EQ(lists(), "Ann [+1] | +1");
  select(three_);
  recipients_.remove({2});  // its number equals the first one's
  EXPECT_EQ(lists(), "Ann [+1],Lee, Bob [+2] | +1,+2");
}

TEST_F(RecipientsTest, clearAndTemplatesLeaveTheNumbers) {
  select(three_);
  recipients_.clearEntries();
  EXPECT_EQ(lists(), " | +1,+2,+1");
  recipients_.setEntries(u"Lee, Bob [+2],Zoe [x] [+5],nonsense"_s);
  ASSERT_EQ(recipients_.entries().size(), 3U);
  EXPECT_EQ(recipients_.entries()[0], (Recipient{"Lee, Bob", "+2"}));
  EXPECT_EQ(recipients_.entries()[1], (Recipient{"Zoe [x]", "+5"}));
  EXPECT_EQ(recipients_.numbersList(), "+1,+2,+1");
  for (const char* list : {"a],b [+1]", "nonsense", "Zoe [+5],x []", "old [7],Ann [+1]"}) {
    recipients_.setEntries(QString::fromUtf8(list));
    EXPECT_EQ(recipients_.displayList().toStdString(), list) << "saved again, it must stay what it was";
  }
}

TEST_F(RecipientsTest, removalAfterATemplateRemovesOnlyMatchingNumbers) {
  select(three_);
  recipients_.setEntries(u"Zoe [+5],Lee, Bob [+2]"_s);
  recipients_.remove({0});
  EXPECT_EQ(lists(), "Lee, Bob [+2] | +1,+2,+1");
  recipients_.remove({0});
  EXPECT_EQ(lists(), " | +1,+1");
  for (const auto& [removed, left] :
       Cases<std::vector<int>, std::string>{{{0}, "B [+1] | +2,+1"}, {{0, 1}, " | +2"}}) {
    select(three_);
    recipients_.setEntries(u"A [+1],B [+1]"_s);
    recipients_.remove(removed);
    EXPECT_EQ(lists(), left) << "one repeated number for each entry";
  }
}

TEST_F(RecipientsTest, repeatsAreRemovedFromBothLists) {
  select({contact("Ann", "+1"), contact("Bob", "+2"), contact("Cy", "+1"), contact("Di", "+1"),
          contact("Ed", "+2"), contact("Flo", "+3")});
  EXPECT_EQ(recipients_.repeatedNumberCount(), 2);
  recipients_.setEntries(u"Zoe [+5]"_s);
  recipients_.removeRepeats();
  EXPECT_EQ(lists(), "Zoe [+5] | +1,+2,+1,+1,+2,+3") << "which entry would go with a number is unknown";
  recipients_.setEntries(u"a [+6],b [+7],c [+8],d [+9],e [+10],f [+11]"_s);
  recipients_.removeRepeats();
  EXPECT_EQ(lists(), "a [+6],b [+7],f [+11] | +1,+2,+3");
  EXPECT_EQ(recipients_.repeatedNumberCount(), 0);
}

}  // namespace
}  // namespace parlexo::test
