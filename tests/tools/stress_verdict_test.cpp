// SPDX-License-Identifier: GPL-3.0-or-later
// Tests that the stress program detects a contact store that loses, tears or duplicates records.

#include <fstream>
#include <functional>

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include "contacts/contact_file_format.h"
#include "tools/contact_store_stress/stress_record.h"
#include "tools/contact_store_stress/verdict.h"

namespace parlexo::stress {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr char inUse = 1;
constexpr char deleted = 0;

class StressVerdict : public testing::Test {
 protected:
  void stored(const std::string& key, const std::string& value, char state = inUse) {
    std::string record = recordFor(Kind::Contacts, key, value);
    record[0] = state;
    file_ += record;
  }

  std::vector<std::string> problems(const std::string& journal) {
    write("journal", journal);
    write("database", file_);
    return check(Kind::Contacts, pathOf("database"), {pathOf("journal")}).problems;
  }

  Verdict memberVerdict(const std::string& journal, const std::string& contactJournal) {
    write("journal", journal);
    write("contacts", contactJournal);
    write("database", file_);
    return check(Kind::Members, pathOf("database"), {pathOf("journal")}, {pathOf("contacts")});
  }

  // An "@" in the journal stands for the group's file.
  std::vector<std::string> groupProblems(std::string journal) {
    for (std::size_t at = 0; (at = journal.find('@', at)) != std::string::npos;)
      journal.replace(at, 1, "group|");
    write("journal", journal);
    write("group", file_);
    return checkGroups({pathOf("group")}, {pathOf("journal")}).problems;
  }

  std::string file_;

 private:
  std::string pathOf(const std::string& name) {
    return folder_.filePath(QString::fromStdString(name)).toStdString();
  }
  void write(const std::string& name, const std::string& bytes) {
    std::ofstream(pathOf(name), std::ios::binary) << bytes;
  }

  QTemporaryDir folder_;
};

// Ann is written from 10 to 20 and again from 30 to 40.
const std::string twoWrites = "begin\tw\t10\tAnn\tfirst\ndone\t20\nbegin\tw\t30\tAnn\tsecond\ndone\t40\n";

TEST_F(StressVerdict, lastAcknowledgedValueIsExpected) {
  stored("Ann", "second");
  EXPECT_THAT(problems(twoWrites), IsEmpty());
}

TEST_F(StressVerdict, lostAndOutdatedWritesAreFound) {
  EXPECT_THAT(problems(twoWrites), ElementsAre(HasSubstr("Ann: shows \"(deleted)\"")));
  stored("Ann", "first");
  EXPECT_THAT(problems(twoWrites), ElementsAre(HasSubstr("Ann: shows \"first\"")));
}

TEST_F(StressVerdict, operationCutOffByAKillMayHaveHappenedOrNot) {
  const std::string cutOff = twoWrites + "begin\td\t50\tAnn\t\n";
  stored("Ann", "second", deleted);
  EXPECT_THAT(problems(cutOff), IsEmpty());
  file_.clear();
  stored("Ann", "second");
  EXPECT_THAT(problems(cutOff), IsEmpty());
  EXPECT_THAT(problems(cutOff + "done\t60\n"), ElementsAre(HasSubstr("shows \"second\"")));
}

TEST_F(StressVerdict, overlappingOperationsMayEndInEitherOrder) {
  const std::string overlapping = "begin\tw\t10\tAnn\tfirst\ndone\t35\nbegin\tw\t30\tAnn\tsecond\ndone\t40\n";
  stored("Ann", "first");
  EXPECT_THAT(problems(overlapping), IsEmpty());
}

TEST_F(StressVerdict, damagedFileIsFound) {
  const auto problemsWith = [this](const std::function<void()>& damage) {
    file_.clear();
    stored("Ann", "second");
    damage();
    return problems(twoWrites);
  };
  EXPECT_THAT(problemsWith([this] { stored("Ann", "second"); }), ElementsAre(HasSubstr("occurs twice")));
  EXPECT_THAT(problemsWith([this] { file_[300] ^= 1; }), ElementsAre(HasSubstr("torn or mixed up")));
  EXPECT_THAT(problemsWith([this] { file_ += "x"; }), ElementsAre(HasSubstr("ends within a record")));
  EXPECT_THAT(problemsWith([this] { stored("Bob", "from nowhere"); }),
              ElementsAre(HasSubstr("Bob: was never written")));
}

TEST_F(StressVerdict, memberMayBeGoneOnlyWhereItsContactMayHaveBeen) {
  const struct {
    std::string contactJournal;
    std::size_t missing;
  } cases[] = {
      {"", 1},
      {"begin\tw\t11\tAnn\tx\ndone\t12\n", 1},
      {"begin\td\t1\tAnn\t\ndone\t9\n", 1},
      {"begin\td\t30\tBob\t\ndone\t40\n", 1},
      {"begin\td\t1\tAnn\t\ndone\t11\n", 0},
      {"begin\td\t30\tAnn\t\n", 0},
  };
  for (const auto& each : cases) {
    const Verdict verdict = memberVerdict("begin\tw\t10\tAnn\tmember\ndone\t20\n", each.contactJournal);
    EXPECT_EQ(verdict.missing, each.missing) << each.contactJournal;
    EXPECT_EQ(verdict.problems.size(), each.missing) << each.contactJournal;
  }
}

TEST_F(StressVerdict, memberMustStayUnlessSomethingMayHaveTakenItAway) {
  const std::string added = "begin\tw\t10\t@Ann\tmember\ndone\t20\n";
  const struct {
    std::string after;
    bool mayBeMissing;
  } cases[] = {
      {"", false},
      {"begin\tw\t30\t@Bob\tmember\ndone\t40\n", false},
      {"begin\td\t30\t@Bob\t\ndone\t40\n", false},
      {"begin\td\t30\t@Ann\t\n", true},
      {"begin\td\t30\t@Ann\t\nnothing\n", false},
      {"begin\tr\t30\t@\t\ndone\t40\n", true},
      {"begin\tr\t1\t@\t\ndone\t15\n", true},
      {"begin\tr\t1\t@\t\ndone\t9\n", false},
      {"begin\tr\t30\t@\t\ndone\t40\nbegin\tw\t50\t@Ann\tmember\ndone\t60\n", false},
  };
  file_ = recordFor(Kind::Members, "Bob", {});
  for (const auto& each : cases) {
    const std::string known = added + each.after + "begin\tw\t70\t@Bob\tmember\ndone\t80\n";
    EXPECT_EQ(groupProblems(known).empty(), each.mayBeMissing) << each.after;
  }
  file_ += recordFor(Kind::Members, "Ann", {}) + recordFor(Kind::Members, "Bob", {});
  const std::string both = added + "begin\tw\t70\t@Bob\tmember\ndone\t80\n";
  EXPECT_THAT(groupProblems(both), IsEmpty());
  EXPECT_THAT(groupProblems(added), ElementsAre(HasSubstr("Bob: was never written")));
  file_ += "x";
  EXPECT_THAT(groupProblems(both), ElementsAre(HasSubstr("ends within a record")));
}

}  // namespace
}  // namespace parlexo::stress
