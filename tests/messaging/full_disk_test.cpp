// SPDX-License-Identifier: GPL-3.0-or-later
// Files that are replaced as a whole must survive a full disk.

#include "base/csv_writer.h"
#include "messaging/core/status_file.h"
#include "messaging/core/template.h"
#include "tests/contacts/file_size_limit.h"
#include "tests/support/file_bytes.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

struct StatusFileOnFullDisk : testing::Test {
  /// Saves a new entry while no file may grow beyond `length`.
  bool saveWithin(qint64 length) {
    log_.add({"+61491570156", "new", "Delivered to Gateway", "SMS", "21/11/2026 10:11:12"});
    const FileSizeLimit limit(static_cast<rlim_t>(length));
    return file_.save(log_);
  }
  [[nodiscard]] QStringList files() const {
    return QDir(folder_.path()).entryList({"Status.xml*"}, QDir::Files);
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(u"Status.xml"_s);
  StatusFile file_{path_};
  StatusLog log_;
  RecordingNotifier notifier_;
};

TEST_F(StatusFileOnFullDisk, failedCommitKeepsTheFileAndTheEntry) {
  log_.add({"+1", "old", "s", "SMS", "d"});
  ASSERT_TRUE(file_.save(log_));
  const QByteArray before = readBytes(path_);
  const QStringList filesBefore = files();
  EXPECT_FALSE(saveWithin(before.size()));
  EXPECT_EQ(readBytes(path_), before);
  EXPECT_EQ(files(), filesBefore) << "no temporary file is left";
  EXPECT_TRUE(log_.isModified());
  EXPECT_TRUE(file_.save(log_));
  EXPECT_TRUE(readBytes(path_).contains(">new<"));
}

TEST_F(StatusFileOnFullDisk, rejectedFileWithoutACopyIsNotReplaced) {
  const QByteArray damaged = "<Status>\n<Mess" + QByteArray(1000, 'x');
  writeBytes(path_, damaged);
  file_.load(log_, notifier_);
  EXPECT_FALSE(saveWithin(500));
  EXPECT_EQ(readBytes(path_), damaged);
  EXPECT_FALSE(QFile::exists(path_ + ".1.bad"));
  EXPECT_TRUE(log_.isModified());
  EXPECT_TRUE(file_.save(log_));
  EXPECT_EQ(readBytes(path_ + ".1.bad"), damaged);
}

TEST(OtherFilesOnFullDisk, failedSaveKeepsTheOldFile) {
  const QTemporaryDir folder;
  const TemplateFolder templates(folder.path());
  const QString list = writeBytes(folder.filePath(u"list.csv"_s), "old");
  ASSERT_TRUE(templates.save(u"a"_s, {{}, u"old"_s}));
  CsvWriter csv(CsvCells::Unchanged);
  csv.addRow({u"a row longer than the limit"_s});
  {
    const FileSizeLimit limit(10);
    EXPECT_FALSE(templates.save(u"a"_s, {{}, u"new and longer"_s}));
    EXPECT_NE(csv.save(list), QString());
  }
  EXPECT_EQ(templates.load(u"a"_s), (Template{{}, u"old"_s}));
  EXPECT_EQ(readBytes(list), "old");
}

}  // namespace
}  // namespace parlexo::test
