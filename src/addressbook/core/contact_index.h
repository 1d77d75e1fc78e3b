// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <unordered_map>
#include <vector>

#include <QString>

#include "addressbook/core/contact_selection.h"
#include "addressbook/core/text_search.h"

namespace parlexo {

class AddressBook;

/// A folder of the address book's tree.
struct ContactFolder {
  enum class Kind {
    Root,
    Group,
    AllContacts,  ///< the parent of the read-only folders below
    Letter,       ///< all contacts whose names begin with one of A to Z
    Other,        ///< all contacts whose names begin with anything else
  };

  Kind kind = Kind::Root;
  QString name;  ///< the group's name, or the capital letter; empty for the others

  [[nodiscard]] bool isGroup() const { return kind == Kind::Group; }
  bool operator==(const ContactFolder&) const = default;
};

/// All contacts of the address book, sorted, for display by folder and for searching. They are only sorted in
/// read(), so changing folders is fast even with 100,000 contacts. Contains pointers to the contacts: call
/// clear() before contacts are deleted.
class ContactIndex {
 public:
  using Contacts = ContactSelection::Contacts;

  /// Empty until the first read(). `book` must outlive the index.
  explicit ContactIndex(const AddressBook& book) : book_(book) {}

  /// Reads the contacts of the address book.
  void read();
  /// Removes all contacts until the next read().
  void clear();

  /// Returns the contacts of a folder, sorted: all for the root and "All Contacts", none for an unknown
  /// group. Members added since the last read() are missing.
  [[nodiscard]] Contacts contactsIn(const ContactFolder& folder) const;

  /// Prepares the contacts for find(), which otherwise does so when first called after read().
  void prepareSearch();
  /// Returns the contacts with every word of `typed` in their name, numbers or Extra fields, sorted.
  [[nodiscard]] Contacts find(const QString& typed);

 private:
  static constexpr std::size_t letterCount = 26;
  static constexpr std::size_t otherInitial = letterCount;

  [[nodiscard]] static std::size_t initialIndex(const QString& name);
  [[nodiscard]] Contacts members(const QString& groupName) const;

  const AddressBook& book_;
  Contacts contacts_;
  std::unordered_map<const ContactRecord*, std::size_t> places_;
  std::array<Contacts, letterCount + 1> byInitial_;
  TextSearch search_;
  bool isSearchReady_ = false;
};

}  // namespace parlexo
