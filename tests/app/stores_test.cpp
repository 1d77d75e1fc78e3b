#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include "app/disk_stores.h"
#include "app/pumping_lock_waiter.h"
#include "tests/app/run_fakes.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

class DiskStoresTest : public testing::Test {
 protected:
  void SetUp() override { makeFolderPath(settings_.contactsFolder()); }

  QByteArray statusFile() const {
    QFile file(settings_.statusFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
  }

  QTemporaryDir folder_;
  Settings settings_{folder_.path()};
  Journal journal_;
  JournalNotifier notifier_{journal_};
  JournalProgress progress_{journal_};
};

TEST_F(DiskStoresTest, runThatEndsBeforeTheStatusLogWasReadLeavesTheFileAlone) {
  const QByteArray earlier =
      "<Status>\n<Message Date=\"1\" Type=\"SMS\" Phone=\"+1\" Status=\"x\">r</Message>\n</Status>";
  {
    QFile file(settings_.statusFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(earlier);
  }
  DiskStores stores(settings_, notifier_, progress_);
  stores.saveStatusLog();
  EXPECT_EQ(statusFile(), earlier);
  stores.loadStatusLog();
  stores.statusLog().setStatus(u"r"_qs, u"y"_qs);
  stores.saveStatusLog();
  EXPECT_TRUE(statusFile().contains("Status=\"y\""));
}

TEST_F(DiskStoresTest, firstStartMissesTheStatusFileOnceAndHasThePersonalGroup) {
  {
    DiskStores stores(settings_, notifier_, progress_);
    EXPECT_TRUE(stores.loadContacts());
    EXPECT_TRUE(stores.addressBook().findGroup(u"My Personal Contacts"_qs));
    stores.loadStatusLog();
    EXPECT_EQ(journal_.last(), u"message 0x30 0 Could not locate the status file."_qs);
    stores.releaseContacts();
    EXPECT_TRUE(stores.addressBook().groups().empty());
    stores.saveStatusLog();
  }
  journal_.clear();
  DiskStores(settings_, notifier_, progress_).loadStatusLog();
  EXPECT_EQ(journal_, Journal());
}

TEST(PumpingLockWaiter, eventsRunWhileItWaits) {
  PumpingLockWaiter waiter;
  bool ran = false;
  QTimer timer;
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, [&ran] { ran = true; });
  timer.start(10);
  QElapsedTimer time;
  time.start();
  waiter.pause();
  EXPECT_TRUE(ran);
  EXPECT_GE(time.elapsed(), 490);
}

}  // namespace
}  // namespace parlexo
