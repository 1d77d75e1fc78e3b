// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contacts/address_book.h"
#include "contacts/item_database.h"
#include "tests/support/file_bytes.h"
#include "tests/support/recording_progress.h"
#include "tests/support/test.h"

namespace parlexo::test {

/// A clock that advances only by pauses, with hooks for the actions of other users.
struct FakeWaiter final : LockWaiter {
  qint64 nowSeconds() override {
    if (onOpening) onOpening();
    return halfSeconds_ / 2;
  }
  void pause() override {
    ++halfSeconds_;
    if (onPause) onPause();
  }
  void waitIsOver() override { ++waitsOver; }
  [[nodiscard]] qint64 pauses() const { return halfSeconds_; }

  std::function<void()> onOpening;
  std::function<void()> onPause;
  int waitsOver = 0;

 private:
  qint64 halfSeconds_ = 0;
};

/// The records of the database tests have 12 bytes: the state, a key of 4 and data of 7.
inline constexpr int recordSize = 12;
inline constexpr int keyWidth = 4;
inline constexpr int timeout = 2;

inline const QString contactsFile = QStringLiteral("All Contacts.all_grp");

/// The bytes of a record after its deletion.
inline QByteArray deletedRecord(QByteArray record) {
  record[0] = ItemDatabase::recordDeleted;
  return record;
}

/// A temporary folder with a database that never sleeps.
struct StoreFixture : testing::Test {
  [[nodiscard]] QString filePath(const QString& name) const { return folder_.filePath(name); }

  QTemporaryDir folder_;
  ItemIndexCache cache_;
  FakeWaiter waiter_;
  ItemDatabase database_{cache_, waiter_};
  QString error_;
};

struct AddressBookFixture : StoreFixture {
  RecordingNotifier notifier_;
  RecordingProgress progress_;
  AddressBook book_{folder_.path(), database_};

  bool loadAll(AddressBook& book) {
    return book.loadAll(progress_, [this](const StoreError& error) { showError(error, notifier_); });
  }
  /// Shows the errors as the program does, and returns whether there were none.
  bool report(const StoreResult& result) {
    for (const StoreError& error : result.errors()) showError(error, notifier_);
    return static_cast<bool>(result);
  }
};

}  // namespace parlexo::test
