// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <unordered_map>

#include <QByteArray>
#include <QHash>
#include <QString>

namespace parlexo {

/// The records of a database file as this program last saw them, deleted ones included.
struct ItemIndex {
  /// By key; of several records with one key the last.
  QHash<QByteArray, qint32> recordNumbers;
  /// Records with all their bytes in the file. Not the number of keys: a key may be there twice, and the file
  /// may end within a record whose key is known.
  qint32 recordCount = 0;
};

/// The item indexes of all databases that this run has looked a key up in. One object for the whole run,
/// created by the application and used by the interface thread alone: it has no lock.
class ItemIndexCache {
 public:
  /// The index of the database at `path`, or null. Shared, so that whoever is filling it may finish after
  /// it was dropped.
  [[nodiscard]] std::shared_ptr<ItemIndex> find(const QString& path) const;
  /// Puts an empty index for `path` in place and returns it.
  std::shared_ptr<ItemIndex> create(const QString& path);

  /// Forgets the index of one database; nothing happens when there is none. Always true.
  bool dropItemIndex(const QString& path);
  /// Forgets all indexes, at the end of the run. Always true.
  bool dropAllItemIndexes();

 private:
  std::unordered_map<QString, std::shared_ptr<ItemIndex>> indexes_;
};

}  // namespace parlexo
