// SPDX-License-Identifier: GPL-3.0-or-later
// Every failing system call: its message and the unchanged file.

#include <cerrno>

#include "contacts/item_database.h"
#include "tests/contacts/failing_calls.h"
#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

// Sizes that no other allocation has.
constexpr int oddRecordSize = 1021;
constexpr int oddKeyWidth = 300;

QByteArray item(const char* key, char data, char state = ItemDatabase::recordInUse) {
  return state + QByteArray(key).leftJustified(oddKeyWidth, '\0') +
         QByteArray(oddRecordSize - oddKeyWidth - 1, data);
}

const QByteArray original =
    item("Anna", 'a') + item("Bob", 'b', ItemDatabase::recordDeleted) + item("Cleo", 'c');

enum class Index { Missing, Right, Early };

struct ItemDatabaseFailures : StoreFixture {
  using Operation = std::function<bool()>;
  using Fault = std::function<std::unique_ptr<FailingCall>()>;

  struct Case {
    const char* message;
    Operation operation;
    Fault fault;
    Index index = Index::Right;
  };

  Operation reading() {
    return [this] {
      const auto ignore = [](QByteArrayView) { return true; };
      return database_.readAllItems(error_, oddRecordSize, path_, ignore, timeout);
    };
  }
  Operation writing(const char* key) {
    return [=, this] {
      return database_.writeItem(error_, oddKeyWidth, path_, oddRecordSize, item(key, 'x'), timeout);
    };
  }
  Operation deleting(const char* key) {
    return [=, this] {
      bool deleted = false;
      return database_.deleteItem(error_, oddKeyWidth, path_, key, oddRecordSize, deleted, timeout);
    };
  }
  Operation creating() {
    return [this] { return database_.createDb(error_, path_); };
  }

  void prepare(Index index) {
    writeBytes(path_, original);
    cache_.dropAllItemIndexes();
    if (index == Index::Missing) return;
    ItemIndex& entries = *cache_.create(path_);
    entries = {{{"Anna", 0}, {"Bob", 1}, {"Cleo", 2}}, 3};
    if (index == Index::Early) entries.recordNumbers["Cleo"] = 0;
  }

  void expectMessage(const Case& each) {
    SCOPED_TRACE(each.message);
    prepare(each.index);
    error_.clear();
    int failures = 0;
    {
      const auto fault = each.fault();
      EXPECT_FALSE(each.operation());
      failures = fault->failures();
    }
    EXPECT_EQ(error_, QLatin1String(each.message));
    EXPECT_GE(failures, 1);
    EXPECT_EQ(readBytes(path_), original);
    error_.clear();
    EXPECT_TRUE(each.operation()) << "works again once the fault is gone: " << qPrintable(error_);
  }

  QString path_ = filePath(u"items.db"_s);
};

// The size of the allocation for a new index.
std::size_t indexBytes() {
  const FailingCall counting(std::size_t{0});
  ItemIndexCache().create(QString());
  return counting.firstRequest();
}

template <typename... Arguments>
auto failing(Arguments... arguments) {
  return [=] { return std::make_unique<FailingCall>(arguments...); };
}

TEST_F(ItemDatabaseFailures, ofReadHaveMessages) {
  const Case cases[] = {
      {"[readAllItems:2 - Database open error!]", reading(), failing(Call::Open, 0, EACCES)},
      {"[readAllItems:2 - Database open error!]", reading(), failing(Call::Lock, 0, ENOLCK)},
      {"[readAllItems:3 - Determine database size error!]", reading(), failing(Call::Status, 2, EIO)},
      {"[readAllItems:4 - Out of memory!]", reading(), failing(std::size_t{4 * oddRecordSize})},
      {"[readAllItems:5 - Read from database error!]", reading(), failing(Call::Read, 0, EIO)},
      {"[readAllItems:6 - Unknown error!]", reading(), failing(Call::Read, 0, FailingCall::throwing)},
  };
  for (const Case& each : cases) expectMessage(each);
}

TEST_F(ItemDatabaseFailures, ofWriteHaveMessages) {
  const std::size_t head = oddKeyWidth + 1;
  const Case cases[] = {
      {"[getItemIndex:1 - Out of memory!]", writing("Anna"), failing(indexBytes()), Index::Missing},
      {"[readAllItems:5 - Read from database error!]", writing("Anna"), failing(Call::Read, 0, EIO),
       Index::Missing},
      {"[writeItem:3 - Database open error!]", writing("Anna"), failing(Call::Open, 0, EROFS)},
      {"[writeItem:4 - Determine database size error!]", writing("Anna"), failing(Call::Status, 2, EIO)},
      {"[writeItem:6 - Can't set index position!]", writing("Anna"), failing(Call::Seek, 0, EIO)},
      {"[writeItem:6 - Can't set index position!]", writing("Dora"), failing(Call::Seek, 0, EIO)},
      {"[writeItem:7 - Out of memory!]", writing("Anna"), failing(head)},
      {"[writeItem:8 - Can't read from database!]", writing("Anna"), failing(Call::Read, 0, EIO)},
      {"[writeItem:9 - Can't write to database!]", writing("Anna"), failing(Call::Write, 0, ENOSPC)},
      {"[writeItem:10 - Can't set index position!]", writing("Bob"), failing(Call::Seek, 1, EIO)},
      {"[writeItem:11 - Can't write to the database!]", writing("Bob"), failing(Call::Write, 0, EIO)},
      {"[writeItem:12 - Can't read next item in database!]", writing("Cleo"), failing(Call::Seek, 1, EIO),
       Index::Early},
      {"[writeItem:13 - Can't append item to the database!]", writing("Dora"),
       failing(Call::Write, 0, ENOSPC)},
      {"[writeItem:14 - Unknown error!]", writing("Anna"), failing(Call::Write, 0, FailingCall::throwing)},
  };
  for (const Case& each : cases) expectMessage(each);
}

TEST_F(ItemDatabaseFailures, ofDeleteHaveMessages) {
  const Case cases[] = {
      {"[deleteItem:2 - Database access share error!]", deleting("Cleo"), failing(Call::Open, 0, EACCES)},
      {"[deleteItem:3 - Determine database size error!]", deleting("Cleo"), failing(Call::Status, 2, EIO)},
      {"[deleteItem:4 - Can't set index position!]", deleting("Cleo"), failing(Call::Seek, 0, EIO)},
      {"[deleteItem:5 - Out of memory!]", deleting("Cleo"), failing(std::size_t{oddRecordSize})},
      {"[deleteItem:6 - Read item error!]", deleting("Cleo"), failing(Call::Read, 0, EIO)},
      {"[deleteItem:7 - Can't set index position!]", deleting("Cleo"), failing(Call::Seek, 1, EIO)},
      {"[deleteItem:8 - Can't write item to database!]", deleting("Cleo"), failing(Call::Write, 0, ENOSPC)},
      {"[deleteItem:9 - Unknown error!]", deleting("Cleo"), failing(Call::Read, 0, FailingCall::throwing)},
  };
  for (const Case& each : cases) expectMessage(each);
}

TEST_F(ItemDatabaseFailures, ofCreateHaveMessages) {
  expectMessage(
      {"[createDb:1 - Can't create the database!]", creating(), failing(Call::Open, 0, ENAMETOOLONG)});
  expectMessage({"[createDb:2 - Unknown error!]", creating(), failing(Call::Open, 0, FailingCall::throwing)});
}

TEST_F(ItemDatabaseFailures, lockedFileIsWaitedForAndInterruptedCallsAreRepeated) {
  const struct {
    Call call;
    int passing;
    int error;
    int pauses;
    bool isMissing = false;
  } cases[] = {
      {Call::Open, 0, EBUSY, 1},        {Call::Open, 0, ETXTBSY, 1},
      {Call::Open, 1, ENOENT, 1, true},  // a removed file that is still open can't be recreated
      {Call::Open, 1, ENOENT, 0},        // the file was removed between opening and locking
      {Call::Lock, 0, EWOULDBLOCK, 1},  {Call::Lock, 0, EACCES, 1},
      {Call::Open, 0, EINTR, 0},        {Call::Lock, 0, EINTR, 0},
      {Call::Read, 0, EINTR, 0},        {Call::Write, 0, EINTR, 0},
  };
  for (const auto& each : cases) {
    prepare(Index::Right);
    if (each.isMissing) QFile::remove(path_);
    const qint64 before = waiter_.pauses();
    const FailingCall fault(each.call, each.passing, each.error);
    EXPECT_TRUE(writing("Anna")()) << each.error << qPrintable(error_);
    EXPECT_EQ(fault.failures(), 1);
    EXPECT_EQ(waiter_.pauses() - before, each.pauses) << each.error;
  }
}

}  // namespace
}  // namespace parlexo::test
