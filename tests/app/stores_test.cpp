// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTimer>

#include "app/disk_stores.h"
#include "app/pumping_lock_waiter.h"
#include "tests/contacts/other_process.h"
#include "tests/support/file_bytes.h"
#include "tests/support/recording_progress.h"
#include "tests/support/test.h"
#include "ui/waiting/progress_box.h"

namespace parlexo::test {
namespace {

struct DiskStoresTest : testing::Test {
  void SetUp() override { makeFolderPath(settings_.contactsFolder()); }

  QTemporaryDir folder_;
  Settings settings_{folder_.path()};
  RecordingNotifier notifier_;
  RecordingProgress progress_;
};

TEST_F(DiskStoresTest, saveBeforeTheStatusLogIsReadLeavesTheFileAlone) {
  const QByteArray earlier =
      "<Status>\n<Message Date=\"1\" Type=\"SMS\" Phone=\"+1\" Status=\"x\">r</Message>\n</Status>";
  writeBytes(settings_.statusFile(), earlier);
  DiskStores stores(settings_, notifier_, progress_);
  stores.saveStatusLog();
  EXPECT_EQ(readBytes(settings_.statusFile()), earlier);
  stores.loadStatusLog();
  stores.statusLog().setStatus(u"r"_s, u"y"_s);
  stores.saveStatusLog();
  EXPECT_TRUE(readBytes(settings_.statusFile()).contains("Status=\"y\""));
}

struct WaitingForOthers : testing::Test {
  bool write() { return database_.writeItem(error_, 4, path_, 12, QByteArray("\1Anna1111111", 12), 60); }
  // Runs in the event loop of the wait.
  void laterDo(const std::function<void()>& action) { QTimer::singleShot(20, &context_, action); }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(u"items"_s);
  QObject context_;
  ProgressBox box_;
  PumpingLockWaiter waiter_{box_, std::chrono::milliseconds(5)};
  ItemIndexCache cache_;
  ItemDatabase database_{cache_, waiter_};
  QString error_;
};

TEST_F(WaitingForOthers, boxShowsTheWaitAndRestoresItsLabel) {
  for (const QString& before : {QString(), u"Loading Group \"x\"..."_s}) {
    if (!before.isEmpty()) box_.show(before);
    OtherProcess other(path_, LOCK_EX);
    QString label;
    laterDo([&] {
      label = box_.text();
      other.leave();
    });
    EXPECT_TRUE(write());
    EXPECT_EQ(label, u"Waiting for another user to finish with the contacts..."_s);
    EXPECT_EQ(box_.text(), before);
    EXPECT_EQ(box_.isShowing(), !before.isEmpty());
  }
}

TEST_F(WaitingForOthers, waitEndsAfterTheTimeout) {
  const OtherProcess other(path_, LOCK_EX);
  // The clock runs a hundred times faster: the timeout of 30 seconds takes 0.31 s.
  QElapsedTimer time;
  time.start();
  EXPECT_FALSE(write());
  EXPECT_EQ(error_, u"[readAllItems:1 - Database access share error!]"_s);
  EXPECT_GE(time.elapsed(), 300);
  EXPECT_LT(time.elapsed(), 10'000);
  EXPECT_FALSE(box_.isShowing());
}

}  // namespace
}  // namespace parlexo::test
