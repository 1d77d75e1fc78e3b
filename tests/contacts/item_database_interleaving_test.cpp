// What two programs on one file can come to that the store does not prevent (docs/file-formats.md says
// which), so that a change of any of it is noticed. Two databases with an index each are two programs.

#include <gtest/gtest.h>

#include "tests/contacts/store_fixture.h"

namespace parlexo {
namespace {

class TwoPrograms : public StoreFixture {
 protected:
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

  const QString path_ = pathOf(QStringLiteral("items.db"));
  const QByteArray anna_ = item("Anna", 'a');
  const QByteArray bert_ = item("Bert", 'b');
  const QByteArray cleo_ = item("Cleo", 'c');
  ItemIndexCache otherCache_;
  ItemDatabase other_{otherCache_, waiter_};
  const QString countMessage_ =
      QStringLiteral("[writeItem:5 - Can't write to database as it is locked by another user!]");
};

TEST_F(TwoPrograms, deletionOfKeyThatOthersAppendedFindsNothing) {
  EXPECT_TRUE(write(database_, anna_) && write(other_, bert_));
  EXPECT_FALSE(erase(database_, "Bert"));
  EXPECT_EQ(readBytes(path_), anna_ + bert_);
  // The next new key makes it read the file again.
  EXPECT_TRUE(write(database_, cleo_));
  EXPECT_TRUE(erase(database_, "Bert"));
}

TEST_F(TwoPrograms, slotThatOthersRevivedIsFoundByWhoeverKnewIt) {
  EXPECT_TRUE(write(database_, anna_) && write(database_, bert_));
  EXPECT_TRUE(erase(other_, "Anna") && write(database_, anna_) && erase(other_, "Anna"));
  EXPECT_EQ(readBytes(path_), item("Anna", 'a', ItemDatabase::recordDeleted) + bert_);
}

TEST_F(TwoPrograms, fileMadeAnewWithEqualCountTakesDoubledKey) {
  EXPECT_TRUE(write(database_, anna_));
  EXPECT_TRUE(other_.removeDb(path_) && write(other_, bert_));
  EXPECT_TRUE(write(database_, bert_));
  EXPECT_EQ(readBytes(path_), bert_ + bert_);
}

TEST_F(TwoPrograms, keyBeforeItsRememberedSlotIsDoubledAndNotDeleted) {
  EXPECT_TRUE(write(database_, anna_) && write(database_, bert_));
  EXPECT_TRUE(other_.removeDb(path_) && write(other_, bert_) && write(other_, cleo_));
  EXPECT_FALSE(erase(database_, "Bert"));
  EXPECT_TRUE(write(database_, bert_));
  EXPECT_EQ(readBytes(path_), bert_ + cleo_ + bert_);
}

TEST_F(TwoPrograms, doubledKeysLetKnownKeysChangeAndRefuseNewOnes) {
  writeBytes(path_, anna_ + anna_);
  EXPECT_FALSE(write(database_, bert_));
  EXPECT_EQ(error_, countMessage_);
  EXPECT_TRUE(write(database_, item("Anna", 'z')));
  EXPECT_TRUE(erase(database_, "Anna"));
  EXPECT_EQ(readBytes(path_), anna_ + item("Anna", 'z', ItemDatabase::recordDeleted)) << "one still shows";
}

TEST_F(TwoPrograms, fileEndingWithinRecordLetsKnownKeysChangeAndRefusesNewOnes) {
  writeBytes(path_, anna_ + bert_.first(6));
  EXPECT_FALSE(write(database_, cleo_));
  EXPECT_EQ(error_, countMessage_);
  EXPECT_TRUE(write(database_, item("Anna", 'z')));
  EXPECT_EQ(readBytes(path_), item("Anna", 'z') + bert_.first(6));
}

}  // namespace
}  // namespace parlexo
