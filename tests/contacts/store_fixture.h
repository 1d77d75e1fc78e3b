// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <ostream>
#include <utility>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "base/progress.h"
#include "contacts/address_book.h"
#include "contacts/item_database.h"
#include "tests/support/file_bytes.h"
#include "tests/support/recording_notifier.h"

/// Lets a failed comparison show texts as texts.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace parlexo {

/// A clock that only pauses move, with places to let other users act meanwhile.
class FakeWaiter final : public LockWaiter {
 public:
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

class RecordingProgress final : public Progress {
 public:
  void show(const QString& text = {}) override { opened.append(text); }
  void setText(const QString& text) override {
    texts.append(text);
    if (onText) onText(text);
  }
  void hide() override {}

  QStringList opened;  ///< the texts with which the box was opened
  QStringList texts;
  std::function<void(const QString&)> onText;
};

/// A record of 12 bytes is what the tests of the database itself store: state, key of 4, data of 7.
inline constexpr int recordSize = 12;
inline constexpr int keyWidth = 4;
inline constexpr int timeout = 2;

inline const QString contactsFile = QStringLiteral("All Contacts.all_grp");

/// The record as it lies in the file after its deletion.
inline QByteArray deletedRecord(QByteArray record) {
  record[0] = ItemDatabase::recordDeleted;
  return record;
}

/// A folder of its own with a database that never really sleeps.
class StoreFixture : public testing::Test {
 protected:
  [[nodiscard]] QString pathOf(const QString& name) const { return folder_.filePath(name); }

  QTemporaryDir folder_;
  ItemIndexCache cache_;
  FakeWaiter waiter_;
  ItemDatabase database_{cache_, waiter_};
  QString error_;
};

class AddressBookFixture : public StoreFixture {
 protected:
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

}  // namespace parlexo
