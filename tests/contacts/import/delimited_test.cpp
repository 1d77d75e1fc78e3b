// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/call_runner.h"
#include "contacts/import/delimited_file.h"
#include "contacts/import/delimited_parser.h"
#include "tests/support/file_bytes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

/// The rows in one line: bars between cells, a slash after each row.
std::string joinedRows(const Sheet& sheet) {
  QString all;
  for (int row = 0; row < sheet.rowCount(); ++row) {
    for (int column = 0; column < sheet.cellCount(row); ++column)
      all += sheet.cell(row, column).toString() + u'|';
    if (all.endsWith(u'|')) all.chop(1);
    all += u'/';
  }
  return all.replace(u'\n', u"\\n"_s).toStdString();
}

struct Parsed {
  Sheet sheet;
  QString problem;
};

/// Feeds `step` characters at a time.
Parsed parse(const QString& text, int step, const ImportLimits& limits = {}, QChar delimiter = u',') {
  Parsed parsed;
  DelimitedParser parser(delimiter, limits, limits.rows + 1, parsed.sheet);
  for (qsizetype at = 0; at < text.size(); at += step)
    if (!parser.feed(QStringView(text).mid(at, step))) break;
  parser.finish();
  parsed.problem = parser.problem();
  return parsed;
}

TEST(DelimitedParser, readsCommonFiles) {
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"", ""},
      {"a,b\r\nc,d\r\n", "a|b/c|d/"},
      {"a,b\nc,d\re,f\r\ng", "a|b/c|d/e|f/g/"},
      {"a,,\n,\n\nb", "a||/|//b/"},
      {"\"a,b\",\"say \"\"hi\"\"\"\n", "a,b|say \"hi\"/"},
      {"\"two\nlines\",x", "two\\nlines|x/"},
      {"\"\",\"\"\r\n", "|/"},
      {"\"a\" ,b\r\"c\"\n\"d\"", "a|b/c/d/"},
      {"5\" pipe, \"x\"", "5\" pipe| \"x\"/"},
  };
  for (const auto& [text, rows] : cases)
    for (const int step : {1, 2, 100}) {
      const Parsed parsed = parse(QString::fromUtf8(text), step);
      EXPECT_EQ(joinedRows(parsed.sheet), rows) << text << " by " << step;
      EXPECT_TRUE(parsed.problem.isEmpty()) << text;
    }
}

TEST(DelimitedParser, reportsTheLineOfAnError) {
  ImportLimits small;
  small.columns = 3;
  small.rows = 4;
  small.cellLength = 10;
  const std::vector<std::pair<QString, const char*>> cases = {
      {"a\nb,\"c\nd\n", "Line 2: the quotation mark that opens"},
      {"a\r\n\"b\"c\r\n", "Line 2: a quotation mark inside"},
      {QString("a\nb") + QChar(0) + "c", "Line 2: there is a zero character"},
      {"a,b,c,d\n", "Line 1: there are more than 3 columns"},
      {"1\n2\n3\n4\n5\n6\n", "more than 4 rows"},
      {"a\n12345678901", "Line 2: a cell has more than 10 characters"},
      {"a\n\"1\n2\n3\n4\n5\n6\n7\n8\n9", "Line 2: a cell has more than 10"},
  };
  for (const auto& [text, problem] : cases)
    EXPECT_THAT(parse(text, 3, small).problem.toStdString(), HasSubstr(problem)) << text.toStdString();
}

struct DelimitedFileTest : testing::Test {
  QString write(const QByteArray& bytes) { return writeBytes(folder_.filePath("file.csv"), bytes); }
  [[nodiscard]] SheetReading read(const QString& path) const {
    return readDelimited(path, detectFormat(path, {}, cancel_), {}, cancel_);
  }

  QTemporaryDir folder_;
  CancelFlag cancel_;
};

TEST_F(DelimitedFileTest, detectsEncodingAndDelimiter) {
  const std::string read = "Name|Phone/Zo\u00eb|1,5/";
  const std::vector<std::pair<QByteArray, const char*>> cases = {
      {"Name;Phone\nZo\xC3\xAB;1,5\n", "UTF-8"},
      {"\xEF\xBB\xBFName;Phone\nZo\xC3\xAB;1,5\n", "UTF-8 with its mark"},
      {"Name\tPhone\r\nZo\xEB\t1,5", "code page"},
      {QByteArray("\xFF\xFEN\0a\0m\0e\0|\0P\0h\0o\0n\0e\0\n\0Z\0o\0\xEB\0|\0001\0,\0005\0", 38), "UTF-16LE"},
      {QByteArray("\xFE\xFF\0N\0a\0m\0e\0|\0P\0h\0o\0n\0e\0\n\0Z\0o\0\xEB\0|\0001\0,\0005", 38), "UTF-16BE"},
  };
  for (const auto& [bytes, what] : cases) EXPECT_EQ(joinedRows(this->read(write(bytes)).sheet), read) << what;

  const QString named = write("sep=;\r\nA,b;c\n1,2;\"3");
  EXPECT_EQ(detectFormat(named, {}, cancel_).delimiter, u';');
  EXPECT_EQ(joinedRows(this->read(named).sheet), "A,b|c/");
  EXPECT_THAT(this->read(named).problem.toStdString(), HasSubstr("Line 3")) << "the line of the file";
  const QString even = write("Lee, Ann;0412345678\nOak, Bob;0412345679\n");
  EXPECT_EQ(detectFormat(even, {}, cancel_).delimiter, u';') << "leaves a column of numbers";
}

TEST_F(DelimitedFileTest, detectsTheEncodingOfTheWholeFile) {
  QByteArray late(600'000, 'a');
  for (qsizetype at = 100; at < late.size(); at += 100) late[at] = '\n';
  EXPECT_EQ(detectFormat(write(late), {}, cancel_).encoding, TextEncoding::Utf8);
  EXPECT_EQ(detectFormat(write(late + '\xEB'), {}, cancel_).encoding, TextEncoding::CodePage);
  // The two bytes of the letter are in different chunks.
  late.replace((1 << 18) - 1, 2, "\xC3\xAB");
  const QString path = write(late);
  EXPECT_EQ(detectFormat(path, {}, cancel_).encoding, TextEncoding::Utf8);
  const SheetReading all = read(path);
  EXPECT_TRUE(all.sheet.cell((1 << 18) / 100, 0).contains(u'\u00eb'));
}

TEST_F(DelimitedFileTest, rejectsUnsuitableFiles) {
  ImportLimits small;
  small.fileBytes = 3 << 20;
  QFile large(folder_.filePath(u"large.csv"_s));
  ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(1LL << 30));
  EXPECT_EQ(fileProblem(large.fileName(), small).toStdString(),
            "The file has 1,024 MB. Files of more than 3 MB can't be imported.");
  EXPECT_THAT(fileProblem(large.fileName()).toStdString(), HasSubstr("64 MB"));
  EXPECT_THAT(fileProblem(folder_.path()).toStdString(), HasSubstr("not a file"));
  EXPECT_THAT(fileProblem(folder_.filePath("none")).toStdString(), HasSubstr("no such file"));
  EXPECT_EQ(fileProblem(write({})).toStdString(), "The file is empty.");
  EXPECT_TRUE(fileProblem(write("a")).isEmpty());
}

}  // namespace
}  // namespace parlexo::test
