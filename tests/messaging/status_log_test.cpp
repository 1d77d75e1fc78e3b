// SPDX-License-Identifier: GPL-3.0-or-later

#include "contacts/shared_file.h"
#include "messaging/core/receipts.h"
#include "messaging/core/status_document.h"
#include "messaging/core/status_file.h"
#include "messaging/core/status_order.h"
#include "tests/support/file_bytes.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

const QDateTime sendTime(QDate(2026, 3, 4), QTime(5, 6, 7));

TEST(Receipts, withoutMatchingNumbersAreNotLogged) {
  for (const char* receipts : {"", "+1:R1", "+1:R1,+2:R2,", "+1:R1,+2:R2,+3:R3"})
    EXPECT_TRUE(statusEntries(QString::fromLatin1(receipts), u"+1,+2"_s, {}, sendTime).empty()) << receipts;
  EXPECT_TRUE(statusEntries({}, {}, {}, sendTime).empty());
  EXPECT_EQ(statusEntries(u"+1"_s, u"+1"_s, {}, sendTime).front().receipt, "") << "no colon, a number alone";
}

struct StatusFileTest : testing::Test {
  void load(const QByteArray& bytes) {
    writeBytes(path_, bytes);
    file_.load(log_, notifier_);
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(u"Status.xml"_s);
  StatusFile file_{path_, {std::chrono::milliseconds(50), std::chrono::milliseconds(50)}};
  StatusLog log_;
  RecordingNotifier notifier_;
};

StatusEntry entry(const QString& receipt, const QString& status = u"Delivered to Gateway"_s) {
  return {u"+61491570156"_s, receipt, status, u"SMS"_s, u"21/11/2026 10:11:12"_s};
}

TEST_F(StatusFileTest, writtenFormIsExact) {
  log_.add(entry(u"R1"_s, QString::fromUtf8("G\u00F6ne <\"&\">")));
  ASSERT_TRUE(file_.save(log_));
  EXPECT_EQ(readBytes(path_).toStdString(),
            "<Status>\n"
            "<Message Date=\"21/11/2026 10:11:12\" Type=\"SMS\" Phone=\"+61491570156\" "
            "Status=\"G\xC3\xB6ne <\"&\">\">R1</Message>\n"
            "</Status>");
  EXPECT_FALSE(log_.isModified());
}

TEST_F(StatusFileTest, onlyTheFirstThousandElementsAreRead) {
  QByteArray bytes = "<Status><Other/>\n";
  for (int i = 1; i < 1500; ++i)
    bytes += "<Message Date=\"d\" Status=\"\xE2\x9C\x94\">" + QByteArray::number(i) + "</Message>\n";
  load(bytes + "</Status>");
  EXPECT_EQ(log_.entries().size(), 999U) << "an element of another name counts";
  EXPECT_EQ(log_.entries().at(u"999"_s), (StatusEntry{{}, "999", u"\u2714"_s, {}, "d"}));
  EXPECT_FALSE(log_.isModified());
  EXPECT_THAT(notifier_.popTexts(), IsEmpty());
}

TEST_F(StatusFileTest, onlyTheNewestEntriesAreWritten) {
  for (int i = 0; i < 1200; ++i) {
    StatusEntry each = entry(QString::number(i));
    each.date = QDateTime(QDate(2026, 1, 1), {}).addDays(i * 7 % 1200).toString("dd/MM/yyyy HH:mm:ss");
    log_.add(each);
  }
  ASSERT_TRUE(file_.save(log_));
  EXPECT_EQ(readBytes(path_).count("<Message "), 1001);
  EXPECT_FALSE(readBytes(path_).contains("/01/2026")) << "the oldest month";
  file_.load(log_, notifier_);
  EXPECT_TRUE(log_.entries().contains(u"857"_s)) << "the newest, 1199 days later";
}

TEST_F(StatusFileTest, missingFileIsAWarning) {
  log_.add(entry(u"old"_s));
  file_.load(log_, notifier_);
  EXPECT_EQ(notifier_.shown.at(0).style, message_style::exclamation);
  EXPECT_THAT(notifier_.popTexts(), ElementsAre("Could not locate the status file."));
  EXPECT_THAT(log_.entries(), IsEmpty());
}

TEST_F(StatusFileTest, rejectedFileIsKeptAndItsReadableLinesAreRecovered) {
  const QByteArray good = "<Message Date=\"d\" Type=\"SMS\" Phone=\"+1\" Status=\"s\">R</Message>\n";
  const QByteArray bomb =
      "<!DOCTYPE s [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
      "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\">]>"
      "<Status><Message>&d;</Message></Status>";
  const QByteArray quoted =
      "<Message Date=\"d\" Type=\"SMS\" Phone=\"+1\" Status=\"a \"b\" & <c> \">\">Q</Message>\n";
  const StatusEntry goodEntry{"+1", "R", "s", "SMS", "d"};
  const StatusEntry quotedEntry{"+1", "Q", "a \"b\" & <c> \">", "SMS", "d"};
  const Cases<QByteArray, std::vector<StatusEntry>, const char*> samples = {
      {"", {}, "\n\n0 entries were brought back."},
      {"<Status>\n" + good + "<Mess", {goodEntry}, "\n\n1 entry was brought back."},
      {"<Status>\r\n  <Message Phone=\"&lt;\">X</Message>\r\n" + quoted + good + "</Status>",
       {{"<", "X", {}, {}, {}}, quotedEntry, goodEntry},
       "\n\n3 entries were brought back."},
      {"<Status>\n" + good.left(30) + "\n" + quoted + "\xFF\n</Status>\n", {quotedEntry}, "\n\n1 entry was"},
      {"<Status>\n" + good + "</Status><Status/>", {goodEntry}, "\n\n1 entry was"},
      {bomb, {}, "\n\n0 entries"},
      {"<Status><Message>" + QByteArray("<a>").repeated(1'000'000), {}, "\n\n0 entries"},
  };
  for (const auto& [bytes, entries, said] : samples) {
    load(bytes);
    EXPECT_THAT(notifier_.popTexts(), ElementsAre(AllOf(HasSubstr("cannot be read: "), HasSubstr(said))))
        << bytes.toStdString();
    EXPECT_EQ(log_.entries().size(), entries.size());
    for (const StatusEntry& each : entries) EXPECT_EQ(log_.entries().at(each.receipt), each);
    // The second save must not copy the file of the first one.
    for (const char* receipt : {"new", "newer"}) {
      log_.add(entry(QString::fromLatin1(receipt)));
      ASSERT_TRUE(file_.save(log_));
    }
    const QStringList kept = QDir(folder_.path()).entryList({"*.bad"});
    ASSERT_EQ(kept.size(), 1) << bytes.toStdString();
    EXPECT_EQ(readBytes(folder_.filePath(kept[0])), bytes);
    QFile::remove(folder_.filePath(kept[0]));
    EXPECT_EQ(readOwnStatusDocument(readBytes(path_))->size(), entries.size() + 2);
  }
}

TEST_F(StatusFileTest, tenRejectedFilesAreKept) {
  for (const char* name : {"Status.xml.bad", "Status.xml.9.bad", "Status.xml.x.bad"})
    writeBytes(folder_.filePath(QString::fromLatin1(name)), "old");
  for (int i = 10; i < 20; ++i) {
    load(QByteArray::number(i));
    ASSERT_TRUE(file_.save(log_));
    EXPECT_EQ(readBytes(path_ + u".%1.bad"_s.arg(i)), QByteArray::number(i));
  }
  load("9\n1");
  ASSERT_TRUE(file_.save(log_));
  load("1\n9");
  ASSERT_TRUE(file_.save(log_));
  EXPECT_EQ(readBytes(path_ + ".20.bad"), "9\n1");
  EXPECT_FALSE(QFile::exists(path_ + ".21.bad")) << "the same lines";
  EXPECT_FALSE(QFile::exists(path_ + ".bad"));
  EXPECT_FALSE(QFile::exists(path_ + ".9.bad"));
  EXPECT_EQ(QDir(folder_.path()).entryList({"*.bad"}).size(), 11) << "ten and the user's own";
  QDir(folder_.path()).mkdir("Status.xml.21.bad");
  load("twenty");
  log_.add(entry(u"R"_s));
  EXPECT_FALSE(file_.save(log_));
  EXPECT_EQ(readBytes(path_), "twenty");
  EXPECT_TRUE(log_.isModified());
}

TEST_F(StatusFileTest, aHugeFileIsRefusedAndRenamed) {
  load(QByteArray(StatusFile::maxBytes + 1, ' '));
  EXPECT_THAT(notifier_.popTexts(), ElementsAre(HasSubstr("cannot be read: It is larger")));
  ASSERT_TRUE(file_.save(log_));
  EXPECT_EQ(QFileInfo(path_ + ".1.bad").size(), StatusFile::maxBytes + 1);
}

TEST_F(StatusFileTest, controlCharactersAreRemoved) {
  const QString bad = u"a\x13"_s + QChar(0) + "\x1B\x7F\u0085\uFFFE" + QChar(0xD800) + "b\r\nc\td" +
                      QString::fromUtf8("\U0001F600\u2013");
  const QString clean = QString::fromUtf8("ab  c d\U0001F600\u2013");
  log_.add({bad, "1" + bad, bad, bad, bad});
  ASSERT_TRUE(log_.setStatus("1" + clean, bad));
  const StatusEntry expected{clean, "1" + clean, clean, clean, clean};
  EXPECT_EQ(log_.entries().at(expected.receipt), expected);
  ASSERT_TRUE(file_.save(log_));
  load(readBytes(path_).replace("ab",
                                "a\x13\x01"
                                "b"));
  EXPECT_THAT(notifier_.popTexts(), IsEmpty());
  EXPECT_EQ(log_.entries().at(expected.receipt), expected);
  ASSERT_TRUE(file_.save(log_));
  EXPECT_THAT(QDir(folder_.path()).entryList({"*.bad"}), IsEmpty());
}

TEST_F(StatusFileTest, entriesOfTwoProgramsAreMerged) {
  StatusFile otherFile(path_);
  StatusLog other;
  const auto statuses = [](const StatusLog& log) {
    std::map<std::string, std::string> list;
    for (const auto& [receipt, each] : log.entries()) list[receipt.toStdString()] = each.status.toStdString();
    return list;
  };
  using List = std::map<std::string, std::string>;
  for (const char* receipt : {"both", "theirs", "gone", "FAIL"})
    log_.add(entry(QString::fromLatin1(receipt), "old"));
  ASSERT_TRUE(file_.save(log_));
  otherFile.load(other, notifier_);
  log_.setStatus("both", "mine");
  log_.setStatus("gone", "mine");
  log_.add(entry("sent here", "\"quoted\""));
  log_.add(entry("FAIL", "mine"));
  other.add(entry("sent there", "new"));
  other.setStatus("theirs", "new");
  other.setStatus("both", "new");
  ASSERT_TRUE(otherFile.save(other));
  // The user has removed an entry.
  QByteArray bytes = readBytes(path_);
  const qsizetype gone = bytes.lastIndexOf("<Message", bytes.indexOf(">gone<"));
  writeBytes(path_, bytes.remove(gone, bytes.indexOf('\n', gone) + 1 - gone));
  ASSERT_TRUE(file_.save(log_));
  const List merged{{"both", "mine"},
                    {"theirs", "new"},
                    {"sent here", "\"quoted\""},
                    {"sent there", "new"},
                    {"FAIL", "mine"}};
  EXPECT_EQ(statuses(log_), merged);
  ASSERT_TRUE(otherFile.save(other));
  EXPECT_EQ(statuses(other), merged);
  EXPECT_EQ(readOwnStatusDocument(readBytes(path_))->size(), 5U);
  EXPECT_THAT(QDir(folder_.path()).entryList({"*.bad"}), IsEmpty()) << "quotation marks are no damage";
  // A damaged or missing file deletes no entries.
  for (const char* damaged : {"<Status>\n<Mess", ""}) {
    *damaged ? void(writeBytes(path_, damaged)) : void(QFile::remove(path_));
    ASSERT_TRUE(file_.save(log_));
    EXPECT_EQ(readOwnStatusDocument(readBytes(path_))->size(), 5U);
  }
}

TEST_F(StatusFileTest, entriesDisplacedByAnotherProgramStayInMemory) {
  log_.add(entry("old"));
  ASSERT_TRUE(file_.save(log_));
  StatusFile otherFile(path_);
  StatusLog other;
  otherFile.load(other, notifier_);
  for (int i = 0; i < 1001; ++i) other.add({{}, QString::number(i), {}, {}, "22/11/2026 00:00:00"});
  ASSERT_TRUE(otherFile.save(other));
  EXPECT_EQ(readBytes(path_).count(">old<"), 0);
  ASSERT_TRUE(file_.save(log_));
  EXPECT_EQ(log_.entries().size(), 1002U);
}

TEST_F(StatusFileTest, failedSaveLeavesTheLogModifiedAndALockDefersAllButTheLastSave) {
  log_.add(entry(u"R"_s));
  EXPECT_FALSE(StatusFile(folder_.filePath(u"missing/Status.xml"_s)).save(log_));
  SharedFile lock;
  ASSERT_EQ(lock.open(path_ + ".lock", SharedFile::Mode::Write), SharedFile::OpenResult::Opened);
  EXPECT_FALSE(file_.save(log_));
  EXPECT_FALSE(QFile::exists(path_));
  EXPECT_TRUE(log_.isModified());
  EXPECT_TRUE(file_.save(log_, StatusFile::IfLocked::WriteAnyway));
  EXPECT_FALSE(log_.isModified());
}

int compared(const char* first, const char* second) {
  return compareStatusInstants(statusInstant(QString::fromLatin1(first)),
                               statusInstant(QString::fromLatin1(second)));
}

std::vector<std::string> sorted(const std::vector<const char*>& dates) {
  std::vector<StatusEntry> entries(dates.size());
  for (std::size_t i = 0; i < dates.size(); ++i) entries[i].date = QString::fromLatin1(dates[i]);
  sortByStatusDate(entries);
  std::vector<std::string> result(entries.size());
  for (std::size_t i = 0; i < entries.size(); ++i) result[i] = entries[i].date.toStdString();
  return result;
}

TEST(StatusOrder, onlyTheSecondsOfTheDifferenceCount) {
  EXPECT_EQ(compared("05/02/2026 23:00:00", "01/02/2026 10:00:00"), 0);
  EXPECT_EQ(compared("01/02/2026 10:01:05", "01/02/2026 10:00:10"), 55);
  EXPECT_EQ(compared("01/02/2026 10:00:00", "02/02/2026 10:00:59"), -59);
  EXPECT_EQ(compared("8/9/2026 8:09:08", "08/09/2026 08:09:09"), -1);
  EXPECT_EQ(statusInstant(u"yesterday"_s), 0);
}

TEST(StatusOrder, isAMergeSortOfACyclicOrder) {
  // a > b and b > c by the seconds, but a and c are whole minutes apart.
  const char* a = "01/01/2026 10:01:00";
  const char* b = "01/01/2026 10:00:30";
  const char* c = "01/01/2026 10:00:00";
  EXPECT_THAT(sorted({a, b, c}), ElementsAre(c, b, a));
  EXPECT_THAT(sorted({a, c, b}), ElementsAre(b, a, c));  // a and c tie, then b goes before a
  EXPECT_THAT(sorted({b, a, c}), ElementsAre(c, b, a));
}

}  // namespace
}  // namespace parlexo::test
