// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <compare>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QString>

#include "contacts/contact_record.h"
#include "contacts/group_file.h"

namespace parlexo {

class AddressBook;

/// Which contacts a list offers.
enum class SelectionMode {
  All,
  Sms,    ///< those that accept SMS
  Media,  ///< those that accept MMS and WAP push
  Fax,    ///< those with a fax number
  Phone,  ///< those with a phone number
};

/// Returns whether a list in `mode` offers `contact`.
[[nodiscard]] bool isEligible(const ContactRecord& contact, SelectionMode mode);

/// Returns the name of a contact or group for display in a list. Contacts and groups without a name may come
/// from other programs and damaged files; they get a placeholder, which the user can see and click.
[[nodiscard]] inline QString shownName(const QString& name) {
  return name.trimmed().isEmpty() ? QCoreApplication::translate("ContactName", "(no name)") : name;
}

/// Sort key of a name in the lists of the address book: case-insensitive; names that differ only in case are
/// ordered by code point ("ANN" before "Ann"). Folding the case once per name instead of once per comparison
/// keeps sorting of 100,000 names fast.
class NameKey {
 public:
  explicit NameKey(const QString& name) : folded_(name.toCaseFolded()), name_(name) {}

  [[nodiscard]] std::strong_ordering operator<=>(const NameKey& other) const {
    const int byFolded = folded_.compare(other.folded_);
    return byFolded != 0 ? byFolded <=> 0 : name_.compare(other.name_) <=> 0;
  }
  [[nodiscard]] bool operator==(const NameKey& other) const { return name_ == other.name_; }

 private:
  QString folded_;
  QString name_;
};

/// Sorts `items` by name(item). Items with the same name keep their order.
template <typename Item, typename Projection>
void sortByName(std::vector<Item>& items, Projection name) {
  std::vector<std::pair<NameKey, Item>> keyed;
  keyed.reserve(items.size());
  for (Item& item : items) {
    NameKey key(name(item));
    keyed.emplace_back(std::move(key), std::move(item));
  }
  std::stable_sort(keyed.begin(), keyed.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::transform(keyed.begin(), keyed.end(), items.begin(),
                 [](auto& entry) { return std::move(entry.second); });
}

/// A set of selected contacts, sorted by NameKey. Does not own the contacts, which must outlive it.
class ContactSelection {
 public:
  using Contacts = std::vector<const ContactRecord*>;

  ContactSelection() = default;
  /// Contains the given contacts, which may be in any order but not null. Of contacts with the same name,
  /// only the first one is included.
  explicit ContactSelection(Contacts contacts);
  /// Likewise for contacts that are already sorted and have unique names.
  [[nodiscard]] static ContactSelection fromSorted(Contacts contacts);

  [[nodiscard]] Contacts::const_iterator begin() const { return contacts_.begin(); }
  [[nodiscard]] Contacts::const_iterator end() const { return contacts_.end(); }
  [[nodiscard]] std::size_t size() const { return contacts_.size(); }
  [[nodiscard]] bool isEmpty() const { return contacts_.empty(); }
  /// Returns whether a contact with exactly this name is included.
  [[nodiscard]] bool contains(const QString& name) const;

 private:
  Contacts contacts_;
};

/// Returns the contacts of `book` that a list in `mode` offers, sorted by NameKey.
[[nodiscard]] ContactSelection::Contacts sortedContacts(const AddressBook& book, SelectionMode mode);

/// Returns all groups of `book`, sorted likewise.
[[nodiscard]] std::vector<const GroupFile*> sortedGroups(const AddressBook& book);

}  // namespace parlexo
