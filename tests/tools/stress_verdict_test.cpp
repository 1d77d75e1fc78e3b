// SPDX-License-Identifier: GPL-3.0-or-later
// Tests that the stress program detects a contact store that loses, tears or duplicates records.

#include <fstream>

#include "contacts/contact_file_format.h"
#include "tests/support/test.h"
#include "tools/contact_store_stress/stress_record.h"
#include "tools/contact_store_stress/verdict.h"

namespace parlexo::test {
namespace {

using namespace stress;
constexpr char inUse = 1;
constexpr char deleted = 0;

struct StressVerdict : testing::Test {
  void stored(const std::string& key, const std::string& value, char state = inUse) {
    std::string record = recordFor(Kind::Contacts, key, value);
    record[0] = state;
    file_ += record;
  }

  std::vector<std::string> problems(const std::string& journal) {
    write("journal", journal);
    write("database", file_);
    return check(Kind::Contacts, filePath("database"), {filePath("journal")}).problems;
  }

  Verdict memberVerdict(const std::string& journal, const std::string& contactJournal) {
    write("journal", journal);
    write("contacts", contactJournal);
    write("database", file_);
    return check(Kind::Members, filePath("database"), {filePath("journal")}, {filePath("contacts")});
  }

  // Replaces "@" in the journal by the group's file.
  std::vector<std::string> groupProblems(std::string journal) {
    for (std::size_t at = 0; (at = journal.find('@', at)) != std::string::npos;)
      journal.replace(at, 1, "group|");
    write("journal", journal);
    write("group", file_);
    return checkGroups({filePath("group")}, {filePath("journal")}).problems;
  }

  std::string file_;

 private:
  std::string filePath(const std::string& name) {
    return folder_.filePath(QString::fromStdString(name)).toStdString();
  }
  void write(const std::string& name, const std::string& bytes) {
    std::ofstream(filePath(name), std::ios::binary) << bytes;
  }

  QTemporaryDir folder_;
};

// Ann is written from 10 to 20 and again from 30 to 40.
const std::string twoWrites = "begin\tw\t10\tAnn\tfirst\ndone\t20\nbegin\tw\t30\tAnn\tsecond\ndone\t40\n";

TEST_F(StressVerdict, storedValueMustFollowFromTheJournal) {
  const std::string killed = twoWrites + "begin\td\t50\tAnn\t\n";
  const std::string overlapping = "begin\tw\t10\tAnn\tfirst\ndone\t35\nbegin\tw\t30\tAnn\tsecond\ndone\t40\n";
  const Cases<std::string, const char*, char, std::string> cases = {
      {twoWrites, "second", inUse, ""},
      {twoWrites, "second", deleted, "Ann: shows \"(deleted)\""},
      {twoWrites, "first", inUse, "Ann: shows \"first\""},
      {killed, "second", deleted, ""},
      {killed, "second", inUse, ""},
      {killed + "done\t60\n", "second", inUse, "Ann: shows \"second\""},
      {overlapping, "first", inUse, ""},
  };
  EXPECT_THAT(problems(twoWrites), ElementsAre(HasSubstr("Ann: shows \"(deleted)\"")));
  for (const auto& [journal, value, state, problem] : cases) {
    file_.clear();
    stored("Ann", value, state);
    const auto found = problems(journal);
    EXPECT_EQ(found.size(), problem.empty() ? 0U : 1U) << journal << value;
    if (!found.empty()) {
      EXPECT_THAT(found.front(), HasSubstr(problem));
    }
  }
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

TEST_F(StressVerdict, memberMayBeMissingOnlyWithItsContact) {
  const Cases<std::string, std::size_t> cases = {
      {"", 1},
      {"begin\tw\t11\tAnn\tx\ndone\t12\n", 1},
      {"begin\td\t1\tAnn\t\ndone\t9\n", 1},
      {"begin\td\t30\tBob\t\ndone\t40\n", 1},
      {"begin\td\t1\tAnn\t\ndone\t11\n", 0},
      {"begin\td\t30\tAnn\t\n", 0},
  };
  for (const auto& [contactJournal, missing] : cases) {
    const Verdict verdict = memberVerdict("begin\tw\t10\tAnn\tmember\ndone\t20\n", contactJournal);
    EXPECT_EQ(verdict.missing, missing) << contactJournal;
    EXPECT_EQ(verdict.problems.size(), missing) << contactJournal;
  }
}

TEST_F(StressVerdict, memberMustStayUnlessItMayHaveBeenRemoved) {
  const std::string added = "begin\tw\t10\t@Ann\tmember\ndone\t20\n";
  const Cases<std::string, bool> cases = {
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
  for (const auto& [after, mayBeMissing] : cases) {
    const std::string known = added + after + "begin\tw\t70\t@Bob\tmember\ndone\t80\n";
    EXPECT_EQ(groupProblems(known).empty(), mayBeMissing) << after;
  }
  file_ += recordFor(Kind::Members, "Ann", {}) + recordFor(Kind::Members, "Bob", {});
  const std::string both = added + "begin\tw\t70\t@Bob\tmember\ndone\t80\n";
  EXPECT_THAT(groupProblems(both), IsEmpty());
  EXPECT_THAT(groupProblems(added), ElementsAre(HasSubstr("Bob: was never written")));
  file_ += "x";
  EXPECT_THAT(groupProblems(both), ElementsAre(HasSubstr("ends within a record")));
}

}  // namespace
}  // namespace parlexo::test
