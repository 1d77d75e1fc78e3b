// What happens when other users hold the file. The other user is a second description of the file in this
// process: locks belong to descriptions, so it counts as somebody else.

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <functional>

#include "contacts/item_database.h"
#include "tests/contacts/store_fixture.h"

namespace parlexo {
namespace {

class OtherUser {
 public:
  OtherUser(const QString& path, int lock) : handle_(::open(qPrintable(path), O_RDWR | O_CREAT, 0600)) {
    EXPECT_EQ(::flock(handle_, lock | LOCK_NB), 0);
  }
  ~OtherUser() { leave(); }
  OtherUser(const OtherUser&) = delete;
  OtherUser& operator=(const OtherUser&) = delete;
  void leave() {
    if (handle_ >= 0) ::close(handle_);
    handle_ = -1;
  }

 private:
  int handle_;
};

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
    const OtherUser other(path_, each.lock);
    const qint64 before = waiter_.pauses();
    error_.clear();
    EXPECT_FALSE(each.operation());
    EXPECT_EQ(error_, QLatin1String(each.message));
    // Two seconds are not yet more than the time-out, three are: six pauses of half a second.
    EXPECT_EQ(waiter_.pauses() - before, 6);
  }
  EXPECT_EQ(readBytes(path_), record_);
}

TEST_F(WaitingFixture, operationsSucceedWhenTheOtherUserLeavesInTime) {
  const std::function<bool()> operations[] = {[this] { return read(); }, [this] { return write(); },
                                              [this] { return erase(); }};
  for (const auto& operation : operations) {
    OtherUser other(path_, LOCK_EX);
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

TEST_F(WaitingFixture, readersComeInTogetherAndCreationNeverWaits) {
  {
    const OtherUser reader(path_, LOCK_SH);
    EXPECT_TRUE(read());
  }
  const OtherUser writer(path_, LOCK_EX);
  EXPECT_TRUE(database_.createDb(error_, path_));
  EXPECT_FALSE(database_.removeDb(path_));
  EXPECT_EQ(readBytes(path_), record_);
  EXPECT_EQ(waiter_.pauses(), 0);
}

TEST_F(WaitingFixture, indexIsReadWithItsOwnLongerPatience) {
  database_.dropAllItemIndexes();
  const OtherUser writer(path_, LOCK_EX);
  EXPECT_FALSE(write());
  EXPECT_EQ(error_, QStringLiteral("[readAllItems:1 - Database access share error!]"));
  EXPECT_EQ(waiter_.pauses(), 62);
}

TEST_F(WaitingFixture, fileDeletedWhileWaitingIsMadeAnewAndTakesTheWrite) {
  OtherUser other(path_, LOCK_EX);
  waiter_.onPause = [&] {
    QFile::remove(path_);
    other.leave();
  };
  EXPECT_TRUE(write());
  EXPECT_EQ(readBytes(path_), record_);
}

}  // namespace
}  // namespace parlexo
