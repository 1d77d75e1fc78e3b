// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <unordered_map>
#include <vector>

#include <QString>

#include "addressbook/core/contact_folder.h"
#include "addressbook/core/contact_selection.h"
#include "addressbook/core/text_search.h"

namespace parlexo {

class AddressBook;

/// All contacts of the address book in the order of its lists, ready to be shown folder by folder or to be
/// searched. Sorting is done once per read(), so that 100,000 contacts change folders at once. It holds
/// pointers into the book: before contacts are deleted it has to forget() them.
class ContactIndex {
 public:
  using Contacts = ContactSelection::Contacts;

  /// Empty until the first read(). `book` must outlive the index.
  explicit ContactIndex(const AddressBook& book) : book_(book) {}

  /// Takes over what the book holds now.
  void read();
  /// Becomes empty until the next read().
  void forget();

  /// The contacts of a folder, sorted; all of them for the root and "All Contacts", none for a group that
  /// there is not. Members that came after the last read() are missing.
  [[nodiscard]] Contacts contactsIn(const ContactFolder& folder) const;

  /// Makes the contacts ready for find(), once per read(). The first find() does so where nobody has.
  void prepareSearch();
  /// The contacts that have every word of `typed` in its name, numbers or Extra fields, sorted.
  [[nodiscard]] Contacts find(const QString& typed);

 private:
  static constexpr std::size_t letterCount = 26;
  static constexpr std::size_t otherInitial = letterCount;

  [[nodiscard]] static std::size_t initialOf(const QString& name);
  [[nodiscard]] Contacts members(const QString& groupName) const;

  const AddressBook& book_;
  Contacts contacts_;
  std::unordered_map<const ContactRecord*, std::size_t> placeOf_;
  std::array<Contacts, letterCount + 1> byInitial_;
  TextSearch search_;
  bool isSearchReady_ = false;
};

}  // namespace parlexo
