// SPDX-License-Identifier: GPL-3.0-or-later
// Files changed, damaged or locked by another program, which is a second database with its own index.

#include <QSet>

#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

struct TwoPrograms : StoreFixture {
  static QByteArray item(const char* key, char data, char state = ItemDatabase::recordInUse) {
    return state + QByteArray(key) + QByteArray(recordSize - keyWidth - 1, data);
  }
  bool write(ItemDatabase& program, const QByteArray& record) {
    return program.writeItem(error_, keyWidth, path_, recordSize, record, timeout);
  }
  bool erase(ItemDatabase& program, const char* key) {
    bool deleted = false;
    EXPECT_TRUE(program.deleteItem(error_, keyWidth, path_, key, recordSize, deleted, timeout));
    return deleted;
  }

  const QString path_ = filePath(u"items.db"_s);
  const QByteArray anna_ = item("Anna", 'a');
  const QByteArray bert_ = item("Bert", 'b');
  const QByteArray cleo_ = item("Cleo", 'c');
  ItemIndexCache otherCache_;
  ItemDatabase other_{otherCache_, waiter_};
};

TEST_F(TwoPrograms, unknownKeyOfAnotherProgramIsNotDeleted) {
  EXPECT_TRUE(write(database_, anna_) && write(other_, bert_));
  EXPECT_FALSE(erase(database_, "Bert"));
  EXPECT_EQ(readBytes(path_), anna_ + bert_);
  // A new key makes the database read the file again.
  EXPECT_TRUE(write(database_, cleo_));
  EXPECT_EQ(readBytes(path_), anna_ + bert_ + cleo_);
  EXPECT_TRUE(erase(database_, "Bert"));
}

TEST_F(TwoPrograms, damagedFilesAcceptNewKeysAndKeepTheirData) {
  const QByteArray dora = item("Dora", 'd');
  const QByteArray torn = bert_.first(6);
  const Cases<QByteArray, QByteArray> cases = {
      {anna_ + anna_, anna_ + anna_},
      {anna_ + torn, anna_ + torn + QByteArray(recordSize - 6, '\0')},
      {anna_ + bert_.first(3), anna_ + bert_.first(3) + QByteArray(recordSize - 3, '\0')},
      {torn, torn + QByteArray(recordSize - 6, '\0')},
      {bert_ + anna_ + bert_ + torn, bert_ + anna_ + bert_ + torn + QByteArray(recordSize - 6, '\0')},
  };
  for (const auto& [damaged, kept] : cases) {
    writeBytes(path_, damaged);
    cache_.dropAllItemIndexes();
    // The second append and the update use the index of the first one.
    EXPECT_TRUE(write(database_, cleo_) && write(database_, dora) && write(database_, item("Cleo", 'z')));
    EXPECT_EQ(readBytes(path_), kept + item("Cleo", 'z') + dora);
  }
  EXPECT_EQ(error_, QString());
}

TEST_F(TwoPrograms, knownKeyCompletesItsTornRecord) {
  writeBytes(path_, anna_ + bert_.first(6));
  EXPECT_TRUE(write(database_, bert_) && write(database_, cleo_));
  EXPECT_EQ(readBytes(path_), anna_ + bert_ + cleo_);
}

TEST_F(TwoPrograms, deletionLocksTheFileBeforeKeysAreChosen) {
  writeBytes(path_, anna_ + bert_ + anna_ + cleo_.first(9));
  const auto choose = [&](QString& error) -> std::optional<QSet<QByteArray>> {
    SharedFile writer;
    EXPECT_EQ(writer.open(path_, SharedFile::Mode::Write), SharedFile::OpenResult::SharingViolation);
    if (!error.isEmpty()) return std::nullopt;
    return QSet<QByteArray>{"Anna", "Cleo", "None"};
  };
  const auto deleteChosen = [&] {
    return database_.deleteItems(error_, keyWidth, path_, recordSize, choose, timeout);
  };
  EXPECT_TRUE(deleteChosen());
  const QByteArray anna = item("Anna", 'a', ItemDatabase::recordDeleted);
  const QByteArray expected = anna + bert_ + anna + item("Cleo", 'c', ItemDatabase::recordDeleted).first(9);
  EXPECT_EQ(readBytes(path_), expected);
  error_ = "kept";
  EXPECT_FALSE(deleteChosen());
  EXPECT_EQ(error_, "kept");
}

}  // namespace
}  // namespace parlexo::test
