// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/csv_writer.h"

#include "tests/support/file_bytes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

QByteArray csvLine(const QStringList& cells, CsvCells kind) {
  CsvWriter csv(kind);
  csv.addRow(cells);
  return csv.bytes().mid(3);
}

TEST(CsvWriter, quotesOnlyTheCellsThatNeedIt) {
  const Cases<QStringList, QByteArray> cases = {
      {{u"plain"_s, u"two words"_s, QString()}, "plain,two words,\r\n"},
      {{u"Doe, J."_s, u"say \"hi\""_s}, "\"Doe, J.\",\"say \"\"hi\"\"\"\r\n"},
      {{u"two\r\nlines"_s, u"a\nb"_s, u"a\rb"_s}, "\"two\r\nlines\",\"a\nb\",\"a\rb\"\r\n"},
      {{u" in front"_s, u"behind "_s}, "\" in front\",\"behind \"\r\n"},
      {{u"Zo\u00EB \u4E2D \U0001F600"_s}, "Zo\xC3\xAB \xE4\xB8\xAD \xF0\x9F\x98\x80\r\n"},
      {{QString()}, "\"\"\r\n"},
      {{QString(), QString()}, ",\r\n"},
  };
  for (const auto& [cells, line] : cases) {
    EXPECT_EQ(csvLine(cells, CsvCells::Unchanged), line) << line.constData();
    EXPECT_EQ(csvLine(cells, CsvCells::Escaped), line) << line.constData();
  }
}

TEST(CsvWriter, escapesFormulas) {
  const Cases<QString, QByteArray, QByteArray> cases = {
      {u"=1+1"_s, "'=1+1", "=1+1"},
      {u"+61491570156"_s, "'+61491570156", "+61491570156"},
      {u"-0.05"_s, "-0.05", "-0.05"},
      {u"-1+2"_s, "'-1+2", "-1+2"},
      {u"-1\n"_s, "\"'-1\n\"", "\"-1\n\""},
      {u"@SUM(A1)"_s, "'@SUM(A1)", "@SUM(A1)"},
      {u"\t=1"_s, "'\t=1", "\"\t=1\""},
      {u"\r=1"_s, "\"'\r=1\"", "\"\r=1\""},
      {u"=\"a\",1"_s, "\"'=\"\"a\"\",1\"", "\"=\"\"a\"\",1\""},
      {u"1+1=2"_s, "1+1=2", "1+1=2"},
  };
  for (const auto& [cell, harmless, asItIs] : cases) {
    EXPECT_EQ(csvLine({cell}, CsvCells::Escaped), harmless + "\r\n");
    EXPECT_EQ(csvLine({cell}, CsvCells::Unchanged), asItIs + "\r\n");
  }
}

TEST(CsvWriter, savesAtomically) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(u"list.csv"_s);
  CsvWriter csv(CsvCells::Unchanged);
  csv.addRow({u"Name"_s});
  csv.addRow({u"Ann"_s});
  ASSERT_EQ(csv.save(path), QString());
  ASSERT_EQ(csv.save(path), QString());
  EXPECT_EQ(readBytes(path), "\xEF\xBB\xBFName\r\nAnn\r\n");

  const QString nowhere = folder.filePath(u"missing/list.csv"_s);
  const QString problem = csv.save(nowhere);
  EXPECT_TRUE(problem.contains(QDir::toNativeSeparators(nowhere))) << problem.toStdString();
  EXPECT_FALSE(problem.endsWith(u": "_s)) << problem.toStdString();
  EXPECT_NE(csv.save(folder.path()), QString());
}

}  // namespace
}  // namespace parlexo::test
