// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/core/addressbook_services.h"
#include "base/call_runner.h"
#include "base/settings.h"
#include "tests/contacts/store_fixture.h"

namespace parlexo::test {

/// An address book on disk with the services of its pages.
struct DiskBook : AddressBookFixture {
  [[nodiscard]] AddressBookServices services() { return {book_, notifier_, progress_, settings_, runner_}; }

  void addContact(const QString& name, const QString& phone = "+61491570156") {
    EXPECT_TRUE(book_.saveContact({name, phone, "Y", "N", {}, {}, {}}));
  }

  /// Clears the memory and reads the files.
  void reload() {
    book_.clear();
    ASSERT_TRUE(loadAll(book_));
  }

  /// Makes all further writes fail.
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

  Settings settings_{folder_.path()};
  DirectCallRunner runner_;
};

}  // namespace parlexo::test
