#include <random>
#include <set>

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include "messaging/core/receipts.h"
#include "messaging/core/status_file.h"
#include "messaging/core/status_order.h"
#include "tests/base/file_bytes.h"
#include "tests/base/recording_notifier.h"

namespace parlexo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const QDateTime sendTime(QDate(2026, 3, 4), QTime(5, 6, 7));

TEST(Receipts, becomeEntriesFailedNumbersIncluded) {
  const auto entries = statusEntries(QStringLiteral("+1:R1,+299:FAIL no route"), QStringLiteral("+1,+299"),
                                     QStringLiteral("SMS"), sendTime);
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[0], (StatusEntry{"+1", "R1", "Delivered to Gateway", "SMS", "04/03/2026 05:06:07"}));
  EXPECT_EQ(entries[1],
            (StatusEntry{"+299", "FAIL no route", "Delivered to Gateway", "SMS", "04/03/2026 05:06:07"}));
}

TEST(Receipts, thatDoNotPairWithTheNumbersAreNotLogged) {
  for (const char* receipts : {"", "+1:R1", "+1:R1,+2:R2,", "+1:R1,+2:R2,+3:R3"})
    EXPECT_TRUE(statusEntries(QString::fromLatin1(receipts), QStringLiteral("+1,+2"), {}, sendTime).empty())
        << receipts;
  EXPECT_TRUE(statusEntries({}, {}, {}, sendTime).empty());
  EXPECT_EQ(statusEntries(QStringLiteral("+1"), QStringLiteral("+1"), {}, sendTime).front().receipt, "")
      << "no colon, a number alone";
}

TEST(Receipts, failuresAreListedOneNumberALine) {
  const QString receipts = QStringLiteral("+199:FAIL,+2:R2,+399:x FAIL");
  EXPECT_TRUE(hasFailures(receipts));
  EXPECT_FALSE(hasFailures(QStringLiteral("+1:fail")));
  EXPECT_EQ(failureWarning(QStringLiteral("Warning"), receipts), "Warning\n+199\n+399\n");
}

class StatusFileTest : public testing::Test {
 protected:
  void load(const QByteArray& bytes) {
    writeBytes(path_, bytes);
    file_.load(log_, notifier_);
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(QStringLiteral("Status.xml"));
  StatusFile file_{path_};
  StatusLog log_;
  RecordingNotifier notifier_;
};

StatusEntry entry(const QString& receipt, const QString& status = QStringLiteral("Delivered to Gateway")) {
  return {QStringLiteral("+61491570156"), receipt, status, QStringLiteral("SMS"),
          QStringLiteral("21/11/2026 10:11:12")};
}

TEST_F(StatusFileTest, writtenFormIsExact) {
  log_.add(entry(QStringLiteral("R1"), QString::fromUtf8("G\u00F6ne <\"&\">")));
  ASSERT_TRUE(file_.save(log_));
  EXPECT_EQ(readBytes(path_).toStdString(),
            "<Status>\n"
            "<Message Date=\"21/11/2026 10:11:12\" Type=\"SMS\" Phone=\"+61491570156\" "
            "Status=\"G\xC3\xB6ne <\"&\">\">R1</Message>\n"
            "</Status>");
  EXPECT_FALSE(log_.isModified());
}

TEST_F(StatusFileTest, onlyTheFirstThousandElementsAreRead) {
  QByteArray bytes = "<Status>\n";
  for (int i = 0; i < 1500; ++i) {
    const QByteArray number = QByteArray::number(i);
    bytes +=
        i == 10 ? "<Other/>\n" : "<Message Date=\"d\" Status=\"\xE2\x9C\x94\">" + number + "</Message>\n";
  }
  load(bytes + "</Status>");
  EXPECT_EQ(log_.entries().size(), 999U);  // the stranger counts
  EXPECT_TRUE(log_.entries().contains(QStringLiteral("999")));
  EXPECT_FALSE(log_.entries().contains(QStringLiteral("1000")));
  EXPECT_EQ(log_.entries().at(QStringLiteral("999")), (StatusEntry{{}, "999", u"\u2714"_qs, {}, "d"}));
  EXPECT_FALSE(log_.isModified());
  EXPECT_THAT(notifier_.takeTexts(), IsEmpty());
}

TEST_F(StatusFileTest, atMostThousandAndOneEntriesAreWritten) {
  for (int i = 0; i < 1200; ++i) log_.add(entry(QString::number(i)));
  EXPECT_EQ(StatusFile::serialise(log_).count("<Message "), 1001);
}

TEST_F(StatusFileTest, missingFileIsAWarning) {
  log_.add(entry(QStringLiteral("old")));
  file_.load(log_, notifier_);
  ASSERT_EQ(notifier_.shown.size(), 1U);
  EXPECT_EQ(notifier_.shown[0].style, message_style::exclamation);
  EXPECT_THAT(notifier_.takeTexts(), ElementsAre("Could not locate the status file."));
  EXPECT_THAT(log_.entries(), IsEmpty());
}

TEST_F(StatusFileTest, rejectedFilesLeaveTheLogEmptyAndSurviveBesideTheNextSave) {
  const QByteArray good = "<Message Date=\"d\" Type=\"SMS\" Phone=\"+1\" Status=\"s\">R</Message>";
  QByteArray faultBehindTheLimit = "<Status>";
  for (int i = 0; i < 1100; ++i) faultBehindTheLimit += good;
  const QByteArray entityBomb =
      "<!DOCTYPE s [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
      "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\">]>"
      "<Status><Message>&d;</Message></Status>";
  const QByteArray samples[] = {
      "",
      "no xml",
      "<Status>" + good,
      "<Status><Message Status=\"a & b\">R</Message></Status>",
      "<Status><Message Status=\"say \"hi\"\">R</Message></Status>",
      "<Status>" + good + "</Status><Status/>",
      faultBehindTheLimit + "<Message></Status>",
      entityBomb,
  };
  for (const QByteArray& bytes : samples) {
    load(bytes);
    EXPECT_THAT(log_.entries(), IsEmpty()) << bytes.left(60).toStdString();
    EXPECT_THAT(notifier_.takeTexts(), ElementsAre(HasSubstr("cannot be read: ")))
        << bytes.left(60).toStdString();
    log_.add(entry(QStringLiteral("new")));
    ASSERT_TRUE(file_.save(log_));
    // Another save must not put the good file in the place of the bad one.
    log_.add(entry(QStringLiteral("newer")));
    ASSERT_TRUE(file_.save(log_));
    EXPECT_EQ(readBytes(path_ + ".bad"), bytes);
    EXPECT_THAT(readBytes(path_).toStdString(), HasSubstr(">new</Message>"));
  }
}

TEST_F(StatusFileTest, aSaveThatTheDiskRefusesIsToldAndTriedAgainLater) {
  StatusFile nowhere(folder_.filePath(QStringLiteral("missing/Status.xml")));
  log_.add(entry(QStringLiteral("R1")));
  EXPECT_FALSE(nowhere.save(log_));
  EXPECT_TRUE(log_.isModified());
}

TEST(StatusLog, anEqualReceiptReplacesTheEarlierEntry) {
  StatusLog log;
  EXPECT_FALSE(log.isModified());
  log.add({"+199", "FAIL", "a", "SMS", "d"});
  log.add({"+299", "FAIL", "b", "Fax", "d"});
  log.add({"+399", "fail", "c", "SMS", "d"});
  EXPECT_TRUE(log.isModified());
  EXPECT_EQ(log.entries().size(), 2U);
  EXPECT_EQ(log.entries().at(QStringLiteral("FAIL")).phone, "+299");
}

int compared(const char* first, const char* second) {
  return compareStatusInstants(statusInstant(QString::fromLatin1(first)),
                               statusInstant(QString::fromLatin1(second)));
}

std::vector<std::string> sorted(const std::vector<const char*>& dates) {
  std::vector<StatusEntry> entries;
  for (const char* date : dates) {
    StatusEntry entry;
    entry.date = QString::fromLatin1(date);
    entries.push_back(entry);
  }
  sortByStatusDate(entries);
  std::vector<std::string> result;
  result.reserve(entries.size());
  for (const StatusEntry& entry : entries) result.push_back(entry.date.toStdString());
  return result;
}

TEST(StatusOrder, onlyTheSecondsOfTheDifferenceCount) {
  EXPECT_EQ(compared("01/02/2026 10:00:30", "01/02/2026 10:00:10"), 20);
  EXPECT_EQ(compared("01/02/2026 10:00:10", "01/02/2026 10:00:30"), -20);
  EXPECT_EQ(compared("05/02/2026 23:00:00", "01/02/2026 10:00:00"), 0);
  EXPECT_EQ(compared("01/02/2026 10:01:05", "01/02/2026 10:00:10"), 55);
  EXPECT_EQ(compared("01/02/2026 10:00:00", "02/02/2026 10:00:59"), -59);
  EXPECT_EQ(compared("8/9/2026 8:09:08", "08/09/2026 08:09:09"), -1);
  EXPECT_EQ(statusInstant(QStringLiteral("yesterday")), 0);
}

TEST(StatusOrder, wholeMinutesApartKeepTheirPlaces) {
  EXPECT_THAT(sorted({"03/01/2026 10:00:05", "01/01/2026 10:00:05", "02/01/2026 10:00:05"}),
              ElementsAre("03/01/2026 10:00:05", "01/01/2026 10:00:05", "02/01/2026 10:00:05"));
}

TEST(StatusOrder, mergesNeighboursFirstThoughTheOrderGoesInACircle) {
  // a > b and b > c by the seconds, but a and c are whole minutes apart.
  const char* a = "01/01/2026 10:01:00";
  const char* b = "01/01/2026 10:00:30";
  const char* c = "01/01/2026 10:00:00";
  EXPECT_THAT(sorted({a, b, c}), ElementsAre(c, b, a));
  EXPECT_THAT(sorted({a, c, b}), ElementsAre(b, a, c));  // a and c tie, then b goes before a
  EXPECT_THAT(sorted({b, a, c}), ElementsAre(c, b, a));
}

TEST(StatusOrder, keepsEveryRowOfALongShuffledList) {
  std::mt19937 random(1);
  std::vector<StatusEntry> entries;
  for (int i = 0; i < 10'001; ++i) {
    StatusEntry entry;
    entry.receipt = QString::number(i);
    const auto part = [&](unsigned from, unsigned count) {
      return QStringLiteral("%1").arg(from + static_cast<unsigned>(random()) % count, 2, 10, QChar(u'0'));
    };
    entry.date =
        part(1, 28) + "/" + part(1, 12) + "/2026 " + part(0, 24) + ":" + part(0, 60) + ":" + part(0, 60);
    entries.push_back(entry);
  }
  sortByStatusDate(entries);
  std::set<QString> seen;
  for (const StatusEntry& entry : entries) seen.insert(entry.receipt);
  EXPECT_EQ(seen.size(), 10'001U);
}

}  // namespace
}  // namespace parlexo
