#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include "addressbook/core/addressbook_services.h"
#include "base/call_runner.h"
#include "base/progress.h"
#include "base/settings.h"
#include "contacts/address_book.h"
#include "contacts/item_database.h"
#include "contacts/item_index_cache.h"
#include "contacts/lock_waiter.h"
#include "tests/base/recording_notifier.h"

namespace parlexo::test {

/// Keeps the texts with which the box was opened.
class OpeningTexts final : public Progress {
 public:
  void show(const QString& text) override { texts << text; }
  void setText(const QString&) override {}
  void hide() override {}

  QStringList texts;
};

/// An address book in a folder of its own.
class DiskBook : public testing::Test {
 protected:
  [[nodiscard]] AddressBookServices services() { return {book_, notifier_, progress_, settings_, runner_}; }

  void addContact(const QString& name, const QString& phone = "+61491570156") {
    book_.saveContact({name, phone, "Y", "N", {}, {}, {}});
  }

  /// Forgets everything and reads the files.
  void reload() {
    book_.clear();
    ASSERT_TRUE(book_.loadAll(progress_));
  }

  /// From now on nothing can be written.
  void loseFolder() {
    cache_.dropAllItemIndexes();
    ASSERT_TRUE(folder_.remove());
  }

  [[nodiscard]] QStringList memberNames(const QString& group) const {
    QStringList names;
    for (const auto& [name, contact] : book_.findGroup(group)->members()) names << name;
    names.sort();
    return names;
  }

  QTemporaryDir folder_;
  RecordingNotifier notifier_;
  OpeningTexts progress_;
  Settings settings_{folder_.path()};
  DirectCallRunner runner_;
  ItemIndexCache cache_;
  SleepingLockWaiter waiter_;
  ItemDatabase database_{cache_, waiter_};
  AddressBook book_{folder_.path(), database_, notifier_};
};

}  // namespace parlexo::test
