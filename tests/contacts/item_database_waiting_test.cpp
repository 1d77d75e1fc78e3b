// SPDX-License-Identifier: GPL-3.0-or-later
// Operations on a file that another process has locked.

#include <sys/file.h>

#include "contacts/item_database.h"
#include "tests/contacts/other_process.h"
#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

struct WaitingFixture : StoreFixture {
  WaitingFixture() {
    writeBytes(path_, record_);
    // With an index the operations need not read the file first.
    *cache_.create(path_) = {{{"Anna", 0}}, 1};
  }
  bool read() {
    const auto ignore = [](QByteArrayView) { return true; };
    return database_.readAllItems(error_, recordSize, path_, ignore, timeout);
  }
  bool write() { return database_.writeItem(error_, keyWidth, path_, recordSize, record_, timeout); }
  bool erase() {
    bool deleted = false;
    return database_.deleteItem(error_, keyWidth, path_, "Anna", recordSize, deleted, timeout) && deleted;
  }

  QString path_ = filePath(u"items.db"_s);
  QByteArray record_ = QByteArray("\1Anna1111111", recordSize);
};

TEST_F(WaitingFixture, operationsFailAfterTheTimeout) {
  const Cases<std::function<bool()>, int, const char*> cases = {
      {[this] { return read(); }, LOCK_EX, "[readAllItems:1 - Database access share error!]"},
      {[this] { return write(); }, LOCK_EX, "[writeItem:2 - Database access share error!]"},
      {[this] { return write(); }, LOCK_SH, "[writeItem:2 - Database access share error!]"},
      {[this] { return erase(); }, LOCK_EX, "[deleteItem:1 - Database access share error!]"},
  };
  for (const auto& [operation, lock, message] : cases) {
    const OtherProcess other(path_, lock);
    const qint64 before = waiter_.pauses();
    error_.clear();
    EXPECT_FALSE(operation());
    EXPECT_EQ(error_, QLatin1String(message));
    // Six pauses of half a second: only three seconds exceed the timeout of two.
    EXPECT_EQ(waiter_.pauses() - before, 6);
  }
  EXPECT_EQ(readBytes(path_), record_);
}

TEST_F(WaitingFixture, operationsSucceedWhenTheLockIsReleasedInTime) {
  const std::function<bool()> operations[] = {[this] { return read(); }, [this] { return write(); },
                                              [this] { return erase(); }};
  for (const auto& operation : operations) {
    OtherProcess other(path_, LOCK_EX);
    int left = 5;
    waiter_.onPause = [&] {
      if (--left == 0) other.leave();
    };
    const int over = waiter_.waitsOver;
    EXPECT_TRUE(operation());
    EXPECT_EQ(left, 0);
    EXPECT_EQ(waiter_.waitsOver - over, 1);
  }
  waiter_.onPause = nullptr;
  EXPECT_TRUE(write());
  EXPECT_EQ(waiter_.waitsOver, 3) << "only a wait that took place is over";
  EXPECT_EQ(error_, QString());
}

TEST_F(WaitingFixture, indexIsReadWithALongerTimeout) {
  database_.dropAllItemIndexes();
  const OtherProcess writer(path_, LOCK_EX);
  EXPECT_FALSE(write());
  EXPECT_EQ(error_, u"[readAllItems:1 - Database access share error!]"_s);
  EXPECT_EQ(waiter_.pauses(), 62);
}

}  // namespace
}  // namespace parlexo::test
