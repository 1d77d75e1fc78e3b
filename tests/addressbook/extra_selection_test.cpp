#include "addressbook/core/extra_selection.h"

#include <algorithm>

#include <QStringList>
#include <gmock/gmock.h>

#include "tests/addressbook/sample_book.h"

namespace parlexo {
namespace {

using test::SampleBook;

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
  QStringList names;
  for (const ContactRecord* contact : contactsMatching(sample.book(), choice)) names << contact->name;
  names.sort();
  return names;
}

TEST(ExtraSelection, listsEveryNonEmptyValueOnceAndSorted) {
  const ExtraValues values = distinctExtraValues(Staff().book());
  EXPECT_EQ(values[0], QStringList({"Hobart", "Perth", "Sydney"}));
  EXPECT_EQ(values[1], QStringList({"Sales", "Support"}));
  EXPECT_TRUE(values[2].isEmpty());
  EXPECT_EQ(values[5], QStringList("x"));
}

TEST(ExtraSelection, spellingMetFirstStandsForTheOthersButMatchesOnlyItself) {
  const Staff sample;
  // The book gives its contacts in no particular order, so the first spelling is asked of it.
  QString first;
  QStringList holders;
  for (const auto& [name, contact] : sample.book().contacts()) {
    if (first.isEmpty()) first = contact.extra[3];
    if (!first.isEmpty() && contact.extra[3] == first) holders << name;
  }
  holders.sort();
  const QStringList listed = distinctExtraValues(sample.book())[3];
  ASSERT_EQ(listed, QStringList(first));
  ExtraChoice choice;
  choice[3] = {listed.front()};
  EXPECT_EQ(matching(sample, choice), holders);
}

TEST(ExtraSelection, fieldsMustAllMatchAndValuesOfAFieldAreAlternatives) {
  const struct {
    const char* what;
    ExtraChoice choice;
    QStringList names;
  } cases[] = {
      {"one value", {{{"Sydney"}, {}, {}, {}, {}, {}}}, {"Ann", "Cid"}},
      {"two values of a field", {{{"Sydney", "Perth"}, {}, {}, {}, {}, {}}}, {"Ann", "Bob", "Cid"}},
      {"two fields", {{{"Sydney"}, {"Sales"}, {}, {}, {}, {}}}, {"Ann"}},
      {"two fields that never meet", {{{"Perth"}, {"Sales"}, {}, {}, {}, {}}}, {}},
      {"one late field alone", {{{}, {}, {}, {"VIP"}, {}, {}}}, {"Ann", "Bob"}},
      {"case counts", {{{}, {}, {}, {"vip"}, {}, {}}}, {"Dan"}},
      {"an empty value never matches", {{{}, {""}, {}, {}, {}, {}}}, {}},
  };
  const Staff sample;
  for (const auto& [what, choice, names] : cases) EXPECT_EQ(matching(sample, choice), names) << what;
}

}  // namespace
}  // namespace parlexo
