#include "messaging/core/status_file.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/base/file_bytes.h"
#include "tests/base/recording_notifier.h"

namespace parlexo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

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

}  // namespace
}  // namespace parlexo
