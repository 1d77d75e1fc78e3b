// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <unordered_map>

#include <QByteArray>
#include <QHash>
#include <QString>

namespace parlexo {

/// The records of a database file when this program last read it, including deleted ones.
struct ItemIndex {
  /// By key; the last one if several records have the same key.
  QHash<QByteArray, qint32> recordNumbers;
  /// The number of complete records. It may differ from the number of keys: a key may occur twice, and the
  /// last record may be incomplete.
  qint32 recordCount = 0;
};

/// The item indexes of all databases in which this process has searched a key. Owned by the application. Not
/// thread-safe: only the interface thread uses it.
class ItemIndexCache {
 public:
  /// Returns the index of the database at `path`, or null. The shared pointer keeps an index alive that is
  /// dropped while it is being filled.
  [[nodiscard]] std::shared_ptr<ItemIndex> find(const QString& path) const {
    const auto found = indexes_.find(path);
    return found == indexes_.end() ? nullptr : found->second;
  }
  /// Creates an empty index for `path`, which replaces an existing one.
  std::shared_ptr<ItemIndex> create(const QString& path) {
    return indexes_[path] = std::make_shared<ItemIndex>();
  }

  /// Removes the index of one database. No-op when there is none. Always returns true.
  bool dropItemIndex(const QString& path) {
    indexes_.erase(path);
    return true;
  }
  /// Removes all indexes. Always returns true.
  bool dropAllItemIndexes() {
    indexes_.clear();
    return true;
  }

 private:
  std::unordered_map<QString, std::shared_ptr<ItemIndex>> indexes_;
};

}  // namespace parlexo
