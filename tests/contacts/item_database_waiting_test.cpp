// What happens when other users hold the file.

#include <sys/file.h>

#include <functional>

#include "contacts/item_database.h"
#include "tests/contacts/other_process.h"
#include "tests/contacts/store_fixture.h"

namespace parlexo {
namespace {

class WaitingFixture : public StoreFixture {
 protected:
  WaitingFixture() {
    writeBytes(path_, record_);
    // Its own index, so that the operations need not read the file first.
    (*cache_.create(path_))["Anna"] = 0;
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

  QString path_ = pathOf(QStringLiteral("items.db"));
  QByteArray record_ = QByteArray("\1Anna1111111", recordSize);
};

TEST_F(WaitingFixture, operationsGiveUpOnceMoreThanTheTimeoutHasPassed) {
  const struct {
    std::function<bool()> operation;
    int lock;
    const char* message;
  } cases[] = {
      {[this] { return read(); }, LOCK_EX, "[readAllItems:1 - Database access share error!]"},
      {[this] { return write(); }, LOCK_EX, "[writeItem:2 - Database access share error!]"},
      {[this] { return write(); }, LOCK_SH, "[writeItem:2 - Database access share error!]"},
      {[this] { return erase(); }, LOCK_EX, "[deleteItem:1 - Database access share error!]"},
  };
  for (const auto& each : cases) {
    const OtherProcess other(path_, each.lock);
    const qint64 before = waiter_.pauses();
    error_.clear();
    EXPECT_FALSE(each.operation());
    EXPECT_EQ(error_, QLatin1String(each.message));
    // Two seconds are not yet more than the time-out, three are: six pauses of half a second.
    EXPECT_EQ(waiter_.pauses() - before, 6);
  }
  EXPECT_EQ(readBytes(path_), record_);
}

TEST_F(WaitingFixture, indexIsReadWithItsOwnLongerPatience) {
  database_.dropAllItemIndexes();
  const OtherProcess writer(path_, LOCK_EX);
  EXPECT_FALSE(write());
  EXPECT_EQ(error_, QStringLiteral("[readAllItems:1 - Database access share error!]"));
  EXPECT_EQ(waiter_.pauses(), 62);
}

}  // namespace
}  // namespace parlexo
