// SPDX-License-Identifier: GPL-3.0-or-later

#include "addressbook/core/contact_import.h"
#include "base/csv_writer.h"
#include "contacts/import/delimited_file.h"
#include "tests/addressbook/disk_book.h"
#include "tests/support/file_bytes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

/// A user who always gives the same answer and cancels at row `cancelAt`.
struct ScriptedUser final : ImportUser {
  [[nodiscard]] bool reportProgress(int done, int total) override {
    lastProgress = importProgressText(done, total);
    return done < cancelAt;
  }
  [[nodiscard]] Answer contactExists(const QString& name) override {
    asked << name;
    return answer;
  }

  Answer answer;
  int cancelAt = 1000;
  QStringList asked;
  QString lastProgress;
};

struct ContactImportTest : DiskBook {
  ContactImportTest() {
    EXPECT_TRUE(book_.saveContact(
        {"Ann", "+61491570156", "N", "Y", "+61255501234", "ann@example.com", {"old", "kept"}}));
    EXPECT_TRUE(book_.createGroup("Team"));
    EXPECT_TRUE(book_.createGroup("Other", {"Ann"}));
  }

  Sheet parseSheet(const QByteArray& text) {
    const QString file = writeBytes(folder_.filePath("import.csv"), text);
    SheetReading reading = readDelimited(file, detectFormat(file, {}, {}), {}, {});
    EXPECT_TRUE(reading.problem.isEmpty());
    return std::move(reading.sheet);
  }

  ImportOutcome import(const QByteArray& text, const QString& group = {}) {
    sheet_ = parseSheet(text);
    plan_.headingRow = findHeadingRow(sheet_);
    plan_.columns = suggestColumns(sheet_, plan_.headingRow);
    plan_.group = group;
    EXPECT_EQ(planProblem(plan_), QString());
    return importContacts(sheet_, plan_, book_, user_, notifier_);
  }

  [[nodiscard]] QString describe(const QString& name) const {
    const ContactRecord* contact = book_.findContact(name);
    if (!contact) return u"none"_s;
    QStringList fields = {contact->name,          contact->phone, contact->supportsSms,
                          contact->supportsMedia, contact->fax,   contact->email};
    for (const QString& extra : contact->extra) fields << extra;
    return fields.join(u',');
  }

  ScriptedUser user_;
  Sheet sheet_;
  ImportPlan plan_;
};

TEST_F(ContactImportTest, addsRowsToBookAndGroup) {
  plan_.countryCode = "+61";
  const ImportOutcome outcome = import(
      "First name;Last Name;Client Id.;Mobile;Extra 1;sms;Media;E-mail\n"
      "Bob;Brown;A-7;0412 345 678;x;;;bob@example.com\n"
      " \n"
      "Cid;;;+61491570157;y;no;YES;\n",
      "Team");
  EXPECT_EQ(outcome.end, ImportOutcome::End::Complete);
  EXPECT_EQ(outcome.imported, 2);
  EXPECT_EQ(user_.lastProgress, "Importing contacts (1 / 2). Please wait...");
  EXPECT_EQ(describe("Bob Brown (A-7)"), "Bob Brown (A-7),+61412345678,Y,N,,bob@example.com,x,,,,,");
  EXPECT_EQ(describe("Cid"), "Cid,+61491570157,N,Y,,,y,,,,,");
  reload();
  EXPECT_EQ(book_.contacts().size(), 3u);
  EXPECT_EQ(memberNames("Team"), QStringList({"Bob Brown (A-7)", "Cid"}));
}

TEST_F(ContactImportTest, rejectedRowsHaveAReason) {
  const ImportOutcome outcome = import(
      "Name,Phone,Fax,Email\n"
      ",+61491570156,,\n"
      "NoNumber,,,\n"
      "National,0412345678,,\n"
      "Letters,+61 call me,,\n"
      "***,+61491570156,,\n"
      "Fax,+61491570156,+x,\n"
      "\xE7\x8E\x8B Ann,+61491570156,,\n"
      "\xE6\x9D\x8E Ann,+61491570156,,\n"
      "??,+61491570156,,\n" +
      QByteArray(81, 'n') + ",+61491570156,,\n");
  std::vector<std::string> reasons;
  for (const auto& [row, reason] : outcome.refused) reasons.push_back(reason.toStdString());
  EXPECT_THAT(reasons, ElementsAre("The row has no name.", "The row has no number.",
                                   "The number 0412345678 has no country code.",
                                   HasSubstr("Invalid Phone Number"), "Invalid Fax Number",
                                   "The name \"\xE7\x8E\x8B Ann\" has characters that can't be stored.",
                                   HasSubstr("\xE6\x9D\x8E Ann"), HasSubstr("no letter or digit"),
                                   HasSubstr("longer than 80")));
  EXPECT_EQ(book_.contacts().size(), 2u) << "a name of signs is a name";

  CsvWriter file(CsvCells::Unchanged);
  writeRefusedRows(sheet_, plan_, outcome, file);
  EXPECT_TRUE(
      file.bytes().startsWith("\xEF\xBB\xBFName,Phone,Fax,Email,Reason\r\n"
                              ",+61491570156,,,The row has no name.\r\n"));
}

TEST_F(ContactImportTest, fullNamePrecedesItsParts) {
  import(
      "Name,Given Name,Family Name,Phone\n"
      "Bob B. Brown,Bob,Brown,+61491570156\n"
      ",Cid,Clay,+61491570157\n");
  EXPECT_TRUE(book_.findContact("Bob B. Brown") && book_.findContact("Cid Clay"));
}

TEST_F(ContactImportTest, lostValuesAreReported) {
  user_.answer = {ImportUser::Choice::Overwrite, true};
  const ImportOutcome outcome = import(
      "Name,Phone,Fax,Email,Extra 2\n"
      "Ann,+61491570156,,nobody,\n"
      "Bob,,+61255501234,bob@" +
      QByteArray("long.").repeated(12) + "org,\n" +
      "\xE2\x80\xAAZoe\xCC\x88\xE2\x80\xAC Lee\xE2\x80\x91May,\xE2\x81\xA8+61\xC2\xA0"
      "491\xE2\x88\x92"
      "570156\xE2\x81\xA9,,zoe@example.org," +
      QByteArray(41, 'x') + "\n");
  std::vector<std::string> remarks;
  for (const auto& [row, text] : outcome.remarks) remarks.push_back(text.toStdString());
  EXPECT_THAT(remarks, ElementsAre("The invalid e-mail address \"nobody\" is left out.",
                                   HasSubstr("longer than 60 characters and is left out"),
                                   "Extra 2 is cut to 40 characters."));
  EXPECT_THAT(summaryText(outcome).toStdString(), HasSubstr("Imported in part: 3"));
  EXPECT_EQ(describe("Ann"), "Ann,+61491570156,N,Y,,ann@example.com,old,,,,,") << "keeps its valid address";
  EXPECT_EQ(describe("Bob"), "Bob,,N,N,+61255501234,,,,,,,") << "a fax gets no SMS";
  EXPECT_EQ(
      describe(QString::fromUtf8("Zo\u00eb Lee-May")),
      QString::fromUtf8("Zo\u00eb Lee-May,+61491570156,Y,N,,zoe@example.org,,") + QString(40, u'x') + ",,,,");
}

TEST_F(ContactImportTest, existingContactsNeedAnAnswer) {
  const QByteArray rows =
      "Name,Phone,Extra 1\nAnn,+61491570999,new\nBob,+61491570157,\nAnn,+61491570888,newer\n";
  const QString before = describe("Ann");

  user_.answer = {ImportUser::Choice::Cancel, false};
  ImportOutcome outcome = import(rows, "Team");
  EXPECT_EQ(outcome.end, ImportOutcome::End::Cancelled);
  EXPECT_EQ(outcome.imported, 0);
  EXPECT_EQ(describe("Ann"), before);

  user_.answer = {ImportUser::Choice::Skip, true};
  outcome = import(rows, "Team");
  EXPECT_EQ(outcome.skipped, 2);
  EXPECT_EQ(outcome.imported, 1);
  EXPECT_EQ(describe("Ann"), before);
  EXPECT_FALSE(book_.findGroup("Team")->contains("Ann"));

  user_.asked.clear();
  user_.answer = {ImportUser::Choice::Overwrite, false};
  outcome = import(rows, "Team");
  EXPECT_EQ(outcome.updated, 3);
  EXPECT_EQ(user_.asked, QStringList({"Ann", "Bob", "Ann"}));
  EXPECT_EQ(describe("Ann"), "Ann,+61491570888,N,Y,+61255501234,ann@example.com,newer,kept,,,,");
  EXPECT_TRUE(book_.findGroup("Team")->contains("Ann") && book_.findGroup("Other")->contains("Ann"));
}

TEST_F(ContactImportTest, cancelAndWriteErrorsEndTheImport) {
  const QByteArray rows = "Name,Phone\nB,+61491570156\nC,+61491570156\nD,+61491570156\n";
  user_.cancelAt = 2;
  ImportOutcome outcome = import(rows);
  EXPECT_EQ(outcome.end, ImportOutcome::End::Cancelled);
  EXPECT_EQ(outcome.imported, 2);
  EXPECT_TRUE(book_.findContact("C") && !book_.findContact("D"));

  EXPECT_THAT(summaryText(outcome).toStdString(),
              HasSubstr("Imported: 2\nUpdated: 0\nSkipped: 0\nRefused: 0\n"
                        "Not imported: 1"));

  user_.cancelAt = 1000;
  const Sheet sheets[] = {parseSheet("Name,Phone\nB,+61491570157\nC,+61491570157\n"),
                          parseSheet("Name,Phone\nD,+61491570157\n")};
  loseFolder();
  user_.answer = {ImportUser::Choice::Overwrite, true};
  for (const Sheet& failing : sheets) {
    outcome = importContacts(failing, plan_, book_, user_, notifier_);
    EXPECT_EQ(outcome.end, ImportOutcome::End::WriteFailed);
    EXPECT_EQ(outcome.updated + outcome.imported, 0);
    EXPECT_THAT(summaryText(outcome).toStdString(), HasSubstr("stopped at row 2,"));
  }
  EXPECT_EQ(book_.findContact("B")->phone, "+61491570156") << "memory must not hold what no file does";
  EXPECT_FALSE(book_.findContact("D"));
}

TEST_F(ContactImportTest, repeatedImportCompletesAGroup) {
  const QByteArray rows = "First Name,Phone\nB,+61491570156\nC,+61491570156\n";
  const QString file = folder_.filePath("Team.grp");
  ASSERT_TRUE(QFile::rename(file, file + ".away") && QDir().mkdir(file));
  ImportOutcome outcome = import(rows, "Team");
  EXPECT_EQ(outcome.end, ImportOutcome::End::JoinFailed);
  EXPECT_EQ(outcome.names, QStringList("B"));
  EXPECT_EQ(outcome.remaining, 1);
  EXPECT_EQ(memberNames("Team"), QStringList());

  ASSERT_TRUE(QDir().rmdir(file) && QFile::rename(file + ".away", file));
  user_.answer = {ImportUser::Choice::Overwrite, true};
  outcome = import(rows, "Team");
  EXPECT_EQ(outcome.end, ImportOutcome::End::Complete);
  reload();
  EXPECT_EQ(memberNames("Team"), QStringList({"B", "C"}));
  EXPECT_EQ(book_.contacts().size(), 3U);
}

TEST(ImportColumns, areFoundByHeadingsOrContent) {
  const Cases<std::vector<QStringList>, std::optional<int>, QStringList> cases = {
      {{{"Client Id", "E-MAIL", "mobile_number", "Phone", "x"}},
       0,
       {"Client Id.", "Email", "Phone Number", "(not imported)", "(not imported)"}},
      {{{"Kunde", "Handy"}, {"Ann", "0412345678"}}, 0, {"(not imported)", "(not imported)"}},
      {{{"Ann", "0412 345 678", "Sydney"}, {"Bob", "0412 345 679", "Perth"}},
       std::nullopt,
       {"Name", "Phone Number", "(not imported)"}},
      {{{"Contacts"}, {}, {"Name", "Given Name", "Family Name", "Phone 1 - Value"}},
       2,
       {"Name", "First Name", "Surname", "Phone Number"}},
      {{{"Kundenliste", ""}, {"Kunde", "Handy"}, {"Ann", "0412345678"}},
       1,
       {"(not imported)", "(not imported)"}},
  };
  for (const auto& [rows, headingRow, expected] : cases) {
    Sheet sheet;
    for (const QStringList& row : rows) {
      for (const QString& cell : row) {
        sheet.append(QStringView(cell));
        sheet.endCell();
      }
      sheet.endRow();
    }
    EXPECT_EQ(findHeadingRow(sheet), headingRow);
    QStringList fields;
    for (const ImportField field : suggestColumns(sheet, headingRow)) fields << fieldLabel(field);
    EXPECT_EQ(fields, expected);
  }
}

}  // namespace
}  // namespace parlexo::test
