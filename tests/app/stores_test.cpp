// SPDX-License-Identifier: GPL-3.0-or-later
#include <chrono>
#include <functional>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include "app/disk_stores.h"
#include "app/pumping_lock_waiter.h"
#include "tests/app/run_fakes.h"
#include "tests/contacts/other_process.h"
#include "tests/support/file_bytes.h"
#include "ui/waiting/progress_box.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

class DiskStoresTest : public testing::Test {
 protected:
  void SetUp() override { makeFolderPath(settings_.contactsFolder()); }

  QTemporaryDir folder_;
  Settings settings_{folder_.path()};
  Journal journal_;
  JournalNotifier notifier_{journal_};
  JournalProgress progress_{journal_};
};

TEST_F(DiskStoresTest, runThatEndsBeforeTheStatusLogWasReadLeavesTheFileAlone) {
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

class WaitingForOthers : public testing::Test {
 protected:
  bool write() { return database_.writeItem(error_, 4, path_, 12, QByteArray("\1Anna1111111", 12), 60); }
  // Called from within the wait: the loop that runs then is the one that keeps the program alive.
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

TEST_F(WaitingForOthers, boxSaysSoWhileEventsRunAndIsThenAsBefore) {
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

TEST_F(WaitingForOthers, patienceEndsAfterItsSecondsOfHalfSecondSteps) {
  const OtherProcess other(path_, LOCK_EX);
  // The clock runs a hundred times faster: the 30 seconds of reading an index take 0.31 s.
  QElapsedTimer time;
  time.start();
  EXPECT_FALSE(write());
  EXPECT_EQ(error_, u"[readAllItems:1 - Database access share error!]"_s);
  EXPECT_GE(time.elapsed(), 300);
  EXPECT_LT(time.elapsed(), 10'000);
  EXPECT_FALSE(box_.isShowing());
}

}  // namespace
}  // namespace parlexo
