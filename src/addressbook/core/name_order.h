// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <compare>
#include <utility>
#include <vector>

#include <QString>

namespace parlexo {

/// The name of a contact or group as lists show it: without a name there would be nothing to see or to click.
/// The folder may hold such contacts and groups, as other programs and damaged files leave them.
[[nodiscard]] inline QString shownName(const QString& name) {
  return name.trimmed().isEmpty() ? QStringLiteral("(no name)") : name;
}

/// Sort key of a name in the lists of the address book: without regard to case, and names that differ only
/// in case by their characters' numbers (so "ANN" stands before "Ann"). Folding once per name instead of
/// once per comparison is what keeps a list of 100,000 names quick.
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

/// Sorts `items` by the name that `nameOf(item)` gives; items of one name keep their order.
template <typename Item, typename NameOf>
void sortByName(std::vector<Item>& items, NameOf nameOf) {
  std::vector<std::pair<NameKey, Item>> keyed;
  keyed.reserve(items.size());
  for (Item& item : items) {
    NameKey key(nameOf(item));
    keyed.emplace_back(std::move(key), std::move(item));
  }
  std::stable_sort(keyed.begin(), keyed.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::transform(keyed.begin(), keyed.end(), items.begin(),
                 [](auto& entry) { return std::move(entry.second); });
}

}  // namespace parlexo
