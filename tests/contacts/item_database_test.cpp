// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/item_database.h"

#include <QByteArrayList>

#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

// The bytes of a record or of its beginning: the first digit is the state byte, a dot is a zero byte.
QByteArray record(const char* picture) {
  QByteArray bytes = QByteArray(picture).replace('.', '\0');
  bytes[0] = static_cast<char>(bytes[0] - '0');
  return bytes;
}

const QByteArray anna = record("1Anna1111111");
const QByteArray bob = record("1Bob.2222222");
const QByteArray cleo = record("1Cleo3333333");

struct ItemDatabaseFixture : StoreFixture {
  bool write(const QByteArray& record) {
    return database_.writeItem(error_, keyWidth, path_, recordSize, record, timeout);
  }
  bool erase(const char* key, bool& deleted) {
    return database_.deleteItem(error_, keyWidth, path_, key, recordSize, deleted, timeout);
  }
  QByteArrayList readAll(bool includeDeleted = false) {
    QByteArrayList records;
    const auto add = [&](QByteArrayView record) {
      records.append(record.toByteArray());
      return true;
    };
    EXPECT_TRUE(database_.readAllItems(error_, recordSize, path_, add, timeout, includeDeleted));
    return records;
  }

  QString path_ = filePath(u"items.db"_s);
};

TEST_F(ItemDatabaseFixture, everyOperationCreatesAMissingFile) {
  EXPECT_TRUE(readAll().isEmpty());
  EXPECT_EQ(readBytes(path_), "");

  bool deleted = true;
  path_ = filePath(u"deleting.db"_s);
  EXPECT_TRUE(erase("Anna", deleted));
  EXPECT_FALSE(deleted);
  EXPECT_EQ(readBytes(path_), "");

  path_ = filePath(u"writing.db"_s);
  EXPECT_TRUE(write(anna));
  EXPECT_EQ(readBytes(path_), anna);

  path_ = filePath(u"creating.db"_s);
  EXPECT_TRUE(database_.createDb(error_, path_));
  EXPECT_EQ(readBytes(path_), "");
  EXPECT_EQ(error_, QString());
}

TEST_F(ItemDatabaseFixture, newKeysAreAppendedAndMarkedInUse) {
  QByteArray marked = bob;
  marked[0] = '\x7F';
  EXPECT_TRUE(write(anna) && write(marked) && write(cleo));
  EXPECT_EQ(readBytes(path_), anna + bob + cleo);
}

TEST_F(ItemDatabaseFixture, writeOfStoredKeyChangesOnlyItsData) {
  // Any state byte except 0 means in use. Bytes after the end of the key are not changed.
  writeBytes(path_, anna + record("5Bo.x2222222") + cleo);
  EXPECT_TRUE(write(record("1Bo..9999999")));
  EXPECT_EQ(readBytes(path_), anna + record("5Bo.x9999999") + cleo);
}

TEST_F(ItemDatabaseFixture, writeOfADeletedKeyReusesItsRecord) {
  bool deleted = false;
  EXPECT_TRUE(write(anna) && write(bob) && erase("Anna", deleted));
  EXPECT_TRUE(deleted);
  EXPECT_EQ(readBytes(path_), record("0Anna1111111") + bob);
  EXPECT_THAT(readAll(), ElementsAre(bob));
  EXPECT_THAT(readAll(true), ElementsAre(record("0Anna1111111"), bob));

  EXPECT_TRUE(erase("Anna", deleted));
  EXPECT_FALSE(deleted);
  EXPECT_TRUE(write(record("1Anna7777777")));
  EXPECT_EQ(readBytes(path_), record("1Anna7777777") + bob);
}

TEST_F(ItemDatabaseFixture, keysMatchExactly) {
  bool deleted = true;
  EXPECT_TRUE(write(anna) && write(bob));
  for (const char* key : {"anna", "Ann", "Annab", "bo", "Bob2", ""}) {
    EXPECT_TRUE(erase(key, deleted)) << key;
    EXPECT_FALSE(deleted) << key;
  }
  EXPECT_EQ(readBytes(path_), anna + bob);
}

TEST_F(ItemDatabaseFixture, lastOfDuplicateKeysIsUsed) {
  const QByteArray later = record("1Anna5555555");
  writeBytes(path_, anna + bob + later);
  EXPECT_TRUE(write(record("1Anna8888888")));
  EXPECT_EQ(readBytes(path_), anna + bob + record("1Anna8888888"));
  bool deleted = false;
  EXPECT_TRUE(erase("Anna", deleted));
  EXPECT_EQ(readBytes(path_), anna + bob + record("0Anna8888888"));
}

TEST_F(ItemDatabaseFixture, visitorCanStopReading) {
  writeBytes(path_, anna + bob + cleo);
  int visited = 0;
  const auto stopAtSecond = [&](QByteArrayView) { return ++visited < 2; };
  EXPECT_TRUE(database_.readAllItems(error_, recordSize, path_, stopAtSecond, timeout));
  EXPECT_EQ(visited, 2);
}

TEST_F(ItemDatabaseFixture, shortLastRecordIsPaddedFromThePreviousOne) {
  const Cases<QByteArray, QByteArray> cases = {
      {anna + bob + record("1Cleo"), record("1Cleo2222222")},
      {anna + record("1B"), record("1Bnna1111111")},
      {record("1Cl"), record("1Cl.........")},
  };
  for (const auto& [file, lastRead] : cases) {
    writeBytes(path_, file);
    const QByteArrayList records = readAll();
    EXPECT_EQ(records.size(), file.size() / recordSize + 1);
    EXPECT_EQ(records.last(), lastRead);
  }
}

TEST_F(ItemDatabaseFixture, recordsBeyondOneReadingBlockKeepTheirOrder) {
  constexpr int count = 200'000;
  const auto numbered = [](int i) {
    return '\1' + QByteArray::number(i).rightJustified(recordSize - 1, '0');
  };
  QByteArray file;
  for (int i = 0; i < count; ++i) file += numbered(i);
  file += "\1end";
  writeBytes(path_, file);
  int next = 0;
  const auto check = [&](QByteArrayView record) {
    const QByteArray expected = next < count ? numbered(next) : "\1end" + numbered(count - 1).sliced(4);
    EXPECT_EQ(record.toByteArray(), expected);
    return next++ <= count;
  };
  EXPECT_TRUE(database_.readAllItems(error_, recordSize, path_, check, timeout));
  EXPECT_EQ(next, count + 1);
}

TEST_F(ItemDatabaseFixture, recreatedFileAcceptsKnownKeysWithoutGapsOrDuplicates) {
  EXPECT_TRUE(write(anna) && write(bob) && write(cleo));
  writeBytes(path_, bob);
  EXPECT_TRUE(write(cleo) && write(anna) && write(cleo));
  EXPECT_EQ(readBytes(path_), bob + cleo + anna);
}

TEST_F(ItemDatabaseFixture, writeGivesUpOnAChangingFileAfterElevenAttempts) {
  for (const int changes : {10, 11}) {
    path_ = filePath(QString::number(changes));
    writeBytes(path_, {});
    int openings = 0;
    int appended = 0;
    // Each attempt opens the file twice: to read the index and to write.
    waiter_.onOpening = [&] {
      if (++openings % 2 == 1 || appended == changes) return;
      writeBytes(path_, readBytes(path_) + '\1' + QByteArray::number(++appended).leftJustified(11, '\0'));
    };
    EXPECT_EQ(write(anna), changes == 10);
    EXPECT_EQ(openings, 22);
    EXPECT_EQ(readBytes(path_).size(), 11 * recordSize);
  }
  EXPECT_EQ(error_, u"[writeItem:5 - Can't write to database as it is locked by another user!]"_s);
  EXPECT_EQ(waiter_.pauses(), 0);
}

TEST_F(ItemDatabaseFixture, invalidRecordsAndPathsAreReported) {
  bool deleted = false;
  EXPECT_FALSE(write({}));
  EXPECT_FALSE(write(anna.chopped(1)));
  EXPECT_EQ(error_, u"[writeItem:1 - Illegal data to write!]"_s.repeated(2));

  // A folder instead of the file.
  path_ = folder_.path();
  error_ = "kept ";
  EXPECT_FALSE(database_.createDb(error_, path_));
  // The failed reading leaves an empty index, so the second write gets one step further.
  EXPECT_FALSE(write(anna) || write(anna));
  EXPECT_TRUE(erase("Anna", deleted));
  cache_.create(path_)->recordNumbers["Anna"] = 0;
  EXPECT_FALSE(erase("Anna", deleted));
  EXPECT_EQ(error_,
            "kept [createDb:1 - Can't create the database!][readAllItems:2 - Database open error!]"
            "[writeItem:3 - Database open error!][deleteItem:2 - Database access share error!]");
  EXPECT_EQ(waiter_.pauses(), 0);
}

TEST_F(ItemDatabaseFixture, droppedIndexIsReadAgain) {
  EXPECT_TRUE(write(anna));
  EXPECT_TRUE(cache_.find(path_));
  EXPECT_TRUE(database_.dropItemIndex(path_) && database_.dropItemIndex(path_));
  EXPECT_FALSE(cache_.find(path_));
  EXPECT_TRUE(write(bob));
  EXPECT_TRUE(database_.removeDb(path_));
  EXPECT_FALSE(cache_.find(path_));
  EXPECT_FALSE(database_.removeDb(path_));
  EXPECT_TRUE(readBytes(path_).isNull());
}

}  // namespace
}  // namespace parlexo::test
