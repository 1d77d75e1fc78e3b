// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <random>

#include "contacts/import/binary_records.h"
#include "contacts/import/number_format.h"
#include "contacts/import/spread_sheet.h"
#include "contacts/import/workbook_builder.h"
#include "contacts/import/workbook_xml.h"
#include "tests/support/file_bytes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

QString sample(const char* name) {
  return QStringLiteral(SAMPLE_FOLDER) + QLatin1String(name);
}

QStringList rowCells(const Sheet& sheet, int row) {
  QStringList cells;
  for (int column = 0; column < sheet.cellCount(row); ++column) cells << sheet.cell(row, column).toString();
  return cells;
}

QString readProblem(const QString& path, const ImportLimits& limits = {}) {
  CSpreadSheet book;
  QString problem = book.read(path, limits, CancelFlag());
  EXPECT_EQ(problem.isEmpty(), !book.sheets().empty()) << path.toStdString();
  return problem;
}

TEST(CSpreadSheet, readsTheWorkbooksOfRealProgramsAlike) {
  const QStringList ann = {"Ann",         "Example",    "1001",
                           "61491570156", "2020-05-06", QString::fromUtf8("Zürich")};
  const QStringList bob = {"Bob", "Brown", "A-7", "0412 345 678", "2021-12-31", "a \"b\", c"};
  for (const char* name :
       {"openpyxl.xlsx", "xlwt.xls", "libreoffice.xlsx", "libreoffice.ods", "libreoffice.xls"}) {
    ASSERT_TRUE(CSpreadSheet::isWorkbook(sample(name)));
    CSpreadSheet book;
    ASSERT_EQ(book.read(sample(name), {}, CancelFlag()), QString()) << name;
    const Sheet& people = book.sheets().front().sheet;
    ASSERT_EQ(people.rowCount(), 3) << name;
    EXPECT_EQ(rowCells(people, 1).mid(0, 6), ann) << name;
    EXPECT_EQ(rowCells(people, 2).mid(0, 6), bob) << name;
    const bool lacksFormulas = name == QLatin1String("libreoffice.xls");
    EXPECT_EQ(book.sheets().front().lacksFormulas, lacksFormulas) << name;
    EXPECT_EQ(rowCells(people, 1).contains("Ann Example"), people.cellCount(0) > 6 && !lacksFormulas) << name;
  }
}

TEST(CSpreadSheet, skipsEmptySheetsAndListsHiddenOnesLast) {
  for (const char* name : {"openpyxl.xlsx", "xlwt.xls"}) {
    CSpreadSheet book;
    ASSERT_EQ(book.read(sample(name), {}, CancelFlag()), QString());
    ASSERT_EQ(book.sheets().size(), 3u);
    EXPECT_EQ(book.sheets()[2].name, "Lists (hidden)") << "though it is the first in the file";
    EXPECT_EQ(rowCells(book.sheets()[1].sheet, 4), QStringList({"", "", "far"}));
  }
}

TEST(CSpreadSheet, stopsAtTheLimits) {
  EXPECT_EQ(readProblem(sample("far-column.xlsx")).toStdString(), "The file has more than 1,000 columns.");
  ImportLimits unpacked;
  unpacked.unpackedBytes = 2000;
  EXPECT_THAT(readProblem(sample("openpyxl.xlsx"), unpacked).toStdString(), HasSubstr("once it is unpacked"));
  EXPECT_THAT(readProblem(sample("libreoffice.ods"), unpacked).toStdString(),
              HasSubstr("once it is unpacked"));
  ImportLimits rows;
  rows.rows = 2;
  ImportLimits text;
  text.textLength = 20;
  for (const char* name : {"openpyxl.xlsx", "libreoffice.ods", "xlwt.xls"}) {
    EXPECT_THAT(readProblem(sample(name), rows).toStdString(), HasSubstr("more than 2 rows"));
    EXPECT_THAT(readProblem(sample(name), text).toStdString(), HasSubstr("too much text"));
  }
}

TEST(CSpreadSheet, readsFilesWithAnyNameAndReportsDamage) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QString::fromUtf8("G\u00e4ste \u540d\u7c3f"));
  for (const char* name : {"openpyxl.xlsx", "libreoffice.ods", "xlwt.xls"}) {
    const QByteArray bytes = readBytes(sample(name));
    EXPECT_EQ(readProblem(writeBytes(path, bytes)).toStdString(), "") << name;
    EXPECT_THAT(readProblem(writeBytes(path, bytes.left(bytes.size() / 2))).toStdString(),
                HasSubstr("can't be read"));
  }
  EXPECT_FALSE(CSpreadSheet::isWorkbook(QStringLiteral(SAMPLE_FOLDER "README.md")));
}

TEST(CompoundFile, survivesRandomDamage) {
  const QByteArray whole = readBytes(sample("libreoffice.xls"));
  ASSERT_EQ(readBinarySheets(readCompoundStream(whole, u"Workbook")).size(), 1u);
  std::mt19937 random(31);
  const auto below = [&](qsizetype limit) { return static_cast<qsizetype>(random()) % limit; };
  for (int round = 0; round < 2000; ++round) {
    QByteArray bytes = whole.left(below(whole.size()) + 1);
    for (int change = 0; change < 20; ++change)
      bytes[below(std::min<qsizetype>(bytes.size(), 700))] = static_cast<char>(below(256));
    const QByteArray stream = readCompoundStream(bytes, u"Workbook");
    ASSERT_LE(stream.size(), bytes.size() + (1 << 16));
    ASSERT_LE(readBinarySheets(stream).size(), static_cast<std::size_t>(stream.size()));
  }
}

TEST(WorkbookXml, rejectsDocumentsThatWouldExhaustMemory) {
  const auto nested = [](int depth) {
    return "<t>" + QByteArray("<a>").repeated(depth) + "x" + QByteArray("</a>").repeated(depth) + "</t>";
  };
  const Cases<QByteArray, bool> cases = {
      {nested(100), true},
      {nested(1'000'000), false},
      {"<!DOCTYPE t [<!ENTITY e \"<a><a>\">]><t>x</t>", false},
  };
  for (const auto& [document, isRead] : cases) {
    WorkbookXml text(document);
    EXPECT_EQ(text.readNextStartElement() ? text.readElementText() : QString(), isRead ? "x" : "");
    WorkbookXml skipped(document);
    if (skipped.readNextStartElement()) skipped.skipCurrentElement();
    EXPECT_EQ(!text.hasError() && !skipped.hasError(), isRead) << document.left(20).toStdString();
  }
}

TEST(WorkbookBuilder, gapsCountAsCells) {
  ImportLimits limits;
  limits.cells = 10;
  const CancelFlag cancel;
  WorkbookBuilder builder(limits, cancel);
  const std::size_t sheet = builder.addSheet("far");
  for (int row = 0; row < 3; ++row) builder.setCell(sheet, row, 4, "x");
  EXPECT_TRUE(builder.build().empty());
  EXPECT_THAT(builder.problem().toStdString(), HasSubstr("more than 10 cells"));
}

TEST(NumberFormat, keepsAllDigitsAndDetectsDates) {
  EXPECT_EQ(numberText(u"61412345678901234567"), "61412345678901234567");
  EXPECT_EQ(numberText(u"6.1412345678E10"), "61412345678");
  EXPECT_EQ(numberText(u"0.1"), "0.1");
  EXPECT_EQ(numberText(u"n/a"), "n/a");
  for (const QStringView date :
       std::initializer_list<QStringView>{u"dd/mm/yyyy", u"[$-409]h:mm AM/PM", u"mmm\\-yy"})
    EXPECT_TRUE(isDateFormat(date)) << date.toString().toStdString();
  for (const QStringView other :
       std::initializer_list<QStringView>{u"General", u"0.00", u"[Red]#,##0", u"\"day\" 0", u"@"})
    EXPECT_FALSE(isDateFormat(other)) << other.toString().toStdString();
  EXPECT_EQ(dateText(42495, true), "2020-05-06");
  EXPECT_EQ(dateText(43957.5, false), "2020-05-06 12:00:00");
  EXPECT_EQ(dateText(0.25, false), "06:00:00");
  EXPECT_EQ(dateText(1e12, false), "1000000000000");
}

}  // namespace
}  // namespace parlexo::test
