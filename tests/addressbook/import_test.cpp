#include <QDir>
#include <QFile>
#include <gmock/gmock.h>

#include "addressbook/core/contact_import.h"
#include "addressbook/core/import_number.h"
#include "base/csv_writer.h"
#include "contacts/import/delimited_file.h"
#include "tests/addressbook/disk_book.h"
#include "tests/base/file_bytes.h"

namespace parlexo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(InternationalNumber, isMadeFromWhatPeopleWrite) {
  struct Case {
    const char* written;
    const char* code;
    const char* number;
  };
  for (const auto& [written, code, number] : {
           Case{"0412 345 678", "+61", "+61412345678"},
           Case{" (02) 9876-5432 ", "+61", "+61298765432"},
           Case{"412345678", "+61", "+61412345678"},
           Case{"61412345678", "+61", "+61412345678"},
           Case{"+44 (0)20 7946 0958", "+61", "+442079460958"},
           Case{"0044.20.7946.0958", "", "+442079460958"},
           Case{"+1 [415] 555\u20132671", "+61", "+14155552671"},
           Case{"06 1234567", "+39", "+39061234567"},
           Case{"0412 345 678", "", "0412345678"},
           Case{"12 ab", "+61", "12ab"},
           Case{"", "+61", ""},
       })
    EXPECT_EQ(internationalNumber(QString::fromUtf8(written), QString::fromLatin1(code)).toStdString(),
              number)
        << written;
}

TEST(InternationalNumber, knowsCountryCodes) {
  for (const char* typed : {"61", "+61", "0061", " + 61 "})
    EXPECT_EQ(countryCodeOf(QString::fromLatin1(typed)), QStringLiteral("+61")) << typed;
  EXPECT_EQ(countryCodeOf(u""), QString());
  for (const char* typed : {"+", "0", "061", "12345", "au"})
    EXPECT_FALSE(countryCodeOf(QString::fromLatin1(typed)).has_value()) << typed;
}

/// A user who answers as told and lets so many rows pass.
class ScriptedUser final : public ImportUser {
 public:
  [[nodiscard]] bool goOn(int done, int total) override {
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

/// An address book on disk, and files to import into it.
class ContactImportTest : public test::DiskBook {
 protected:
  ContactImportTest() {
    book_.saveContact({"Ann", "+61491570156", "N", "Y", "+61255501234", "ann@example.com", {"old", "kept"}});
    book_.createGroup("Team");
    book_.createGroup("Other", {"Ann"});
  }

  Sheet sheetOf(const QByteArray& text) {
    const QString file = writeBytes(folder_.filePath("import.csv"), text);
    SheetReading reading = readDelimited(file, detectFormat(file, {}, {}), {}, {});
    EXPECT_TRUE(reading.problem.isEmpty());
    return std::move(reading.sheet);
  }

  ImportOutcome import(const QByteArray& text, const QString& group = {}) {
    sheet_ = sheetOf(text);
    plan_.hasHeadings = hasHeadings(sheet_);
    plan_.columns = suggestColumns(sheet_, plan_.hasHeadings);
    plan_.group = group;
    EXPECT_EQ(planProblem(plan_), QString());
    return importContacts(sheet_, plan_, book_, user_);
  }

  [[nodiscard]] QString describe(const QString& name) const {
    const ContactRecord* contact = book_.findContact(name);
    if (!contact) return QStringLiteral("none");
    QStringList fields = {contact->name,          contact->phone, contact->supportsSms,
                          contact->supportsMedia, contact->fax,   contact->email};
    for (const QString& extra : contact->extra) fields << extra;
    return fields.join(u',');
  }

  ScriptedUser user_;
  Sheet sheet_;
  ImportPlan plan_;
};

TEST_F(ContactImportTest, takesRowsIntoBookAndGroup) {
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
  // What is on the disk is what was imported.
  reload();
  EXPECT_EQ(book_.contacts().size(), 3u);
  EXPECT_EQ(memberNames("Team"), QStringList({"Bob Brown (A-7)", "Cid"}));
}

TEST_F(ContactImportTest, refusesRowsWithTheirReason) {
  const ImportOutcome outcome = import(
      "Name,Phone,Fax,Email\n"
      ",+61491570156,,\n"
      "NoNumber,,,\n"
      "National,0412345678,,\n"
      "Letters,+61 call me,,\n"
      "Rounded,6.1E+10,,\n"
      "***,+61491570156,,\n"
      "Mail,+61491570156,,nobody\n"
      "Fax,+61491570156,+x,\n"
      "Long,+123456789012345678901,,\n"
      "\xE7\x8E\x8B,+61491570156,,\n" +
      QByteArray(81, 'n') + ",+61491570156,,\n");
  std::vector<std::string> reasons;
  for (const auto& [row, reason] : outcome.refused) reasons.push_back(reason.toStdString());
  EXPECT_THAT(reasons, ElementsAre("The row has no name.", "The row has no number.",
                                   "The number 0412345678 has no country code.",
                                   HasSubstr("Invalid Phone Number"), HasSubstr("has rounded"),
                                   "Invalid Email Address", "Invalid Fax Number", HasSubstr("longer than 20"),
                                   HasSubstr("no letter or digit"), HasSubstr("longer than 80")));
  EXPECT_EQ(book_.contacts().size(), 2u) << "a name of signs is a name";

  CsvWriter file(CsvCells::AsTheyAre);
  writeRefusedRows(sheet_, plan_, outcome, file);
  EXPECT_TRUE(
      file.bytes().startsWith("\xEF\xBB\xBFName,Phone,Fax,Email,Reason\r\n"
                              ",+61491570156,,,The row has no name.\r\n"));
}

TEST_F(ContactImportTest, asksAboutContactsThatExist) {
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

TEST_F(ContactImportTest, stopsWhereTheUserOrTheDiskStopsIt) {
  const QByteArray rows = "Name,Phone\nB,+6149\nC,+6149\nD,+6149\n";
  user_.cancelAt = 2;
  ImportOutcome outcome = import(rows);
  EXPECT_EQ(outcome.end, ImportOutcome::End::Cancelled);
  EXPECT_EQ(outcome.imported, 2);
  EXPECT_TRUE(book_.findContact("C") && !book_.findContact("D"));

  EXPECT_THAT(summaryText(outcome).toStdString(),
              HasSubstr("Imported: 2\nUpdated: 0\nSkipped: 0\nRefused: 0\n"
                        "Not dealt with: 1"));

  user_.cancelAt = 1000;
  const Sheet sheets[] = {sheetOf("Name,Phone\nB,+6150\nC,+6150\n"), sheetOf("Name,Phone\nD,+6150\n")};
  loseFolder();
  user_.answer = {ImportUser::Choice::Overwrite, true};
  for (const Sheet& failing : sheets) {
    outcome = importContacts(failing, plan_, book_, user_);
    EXPECT_EQ(outcome.end, ImportOutcome::End::WriteFailed);
    EXPECT_EQ(outcome.updated + outcome.imported, 0);
    EXPECT_THAT(summaryText(outcome).toStdString(), HasSubstr("stopped at row 2,"));
  }
  EXPECT_EQ(book_.findContact("B")->phone, "+6149") << "memory must not hold what no file does";
  EXPECT_FALSE(book_.findContact("D"));
}

TEST_F(ContactImportTest, repeatsWhatAGroupsFileDidNotTake) {
  const QByteArray rows = "Name,Phone\nB,+6149\nC,+6149\n";
  const QString file = folder_.filePath("Team.grp");
  ASSERT_TRUE(QFile::rename(file, file + ".away") && QDir().mkdir(file));
  ImportOutcome outcome = import(rows, "Team");
  EXPECT_EQ(outcome.end, ImportOutcome::End::JoinFailed);
  EXPECT_EQ(outcome.names, QStringList("B"));
  EXPECT_EQ(outcome.left, 1);
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
  struct Case {
    QStringList first;
    QStringList second;
    bool headings;
    QStringList fields;
  };
  const std::vector<Case> cases = {
      {{"Client Id", "E-MAIL", "mobile_number", "Phone", "x"},
       {},
       true,
       {"Client Id.", "Email", "Phone Number", "(not imported)", "(not imported)"}},
      {{"Kunde", "Handy"}, {"Ann", "0412345678"}, true, {"(not imported)", "(not imported)"}},
      {{"Ann", "0412 345 678", "Sydney"},
       {"Bob", "0412 345 679", "Perth"},
       false,
       {"Name", "Phone Number", "(not imported)"}},
  };
  for (const Case& each : cases) {
    Sheet sheet;
    for (const QStringList& row : {each.first, each.second}) {
      for (const QString& cell : row) {
        sheet.append(QStringView(cell));
        sheet.endCell();
      }
      if (!row.isEmpty()) sheet.endRow();
    }
    EXPECT_EQ(hasHeadings(sheet), each.headings);
    QStringList fields;
    for (const ImportField field : suggestColumns(sheet, each.headings)) fields << fieldLabel(field);
    EXPECT_EQ(fields, each.fields);
  }
}

}  // namespace
}  // namespace parlexo
