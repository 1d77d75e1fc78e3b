// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <functional>
#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QSet>
#include <QString>

#include "contacts/block_reader.h"
#include "contacts/item_index_cache.h"
#include "contacts/lock_waiter.h"
#include "contacts/shared_file.h"

namespace parlexo {

/// Returns the bytes of a fixed-width field up to its first zero byte, or all of them if the field is full.
[[nodiscard]] inline QByteArrayView untilZero(QByteArrayView bytes) {
  return bytes.first(std::find(bytes.begin(), bytes.end(), '\0') - bytes.begin());
}

/// Reads and writes flat files of fixed-size records, each with a state byte and a fixed-width text key
/// (docs/file-formats.md), that several users may share on a network folder. Every operation opens the
/// file, does its work and closes it; a missing file is created empty.
///
/// All operations but createDb() and removeDb() wait while others hold the file: they try again every
/// 500 ms until more than `timeout` whole seconds have gone by. On failure an operation appends one
/// bracketed message, as in "[readAllItems:5 - Read from database error!]", to `error` and returns false;
/// on success it leaves `error` alone.
class ItemDatabase {
 public:
  /// Gets each record; true to go on, false to stop. The bytes are valid during the call only.
  using Visitor = std::function<bool(QByteArrayView record)>;

  static constexpr char recordDeleted = 0;
  static constexpr char recordInUse = 1;

  ItemDatabase(ItemIndexCache& cache, LockWaiter& waiter);

  /// Shows every record to `visitor` in the order of the file, deleted ones only with `includeDeleted`. A
  /// short record at the end of the file is filled up from the record before it. Stopping early is success.
  bool readAllItems(QString& error, int recordSize, const QString& path, const Visitor& visitor, int timeout,
                    bool includeDeleted = false);

  /// Stores `record` (`recordSize` bytes, key filled in; it is stored as in use whatever its state byte)
  /// under its key: over the data of the record with that key, in the slot of a deleted one with that key,
  /// or behind the last. A file that ends within a record gets the new one at the next record boundary.
  /// Fails with message 5 when eleven times in a row the file had another number of whole records than the
  /// index that was just read from it.
  bool writeItem(QString& error, int keyWidth, const QString& path, int recordSize, QByteArrayView record,
                 int timeout);

  /// Marks the record in use with this key as deleted; `deleted` tells whether there was one.
  bool deleteItem(QString& error, int keyWidth, const QString& path, QByteArrayView key, int recordSize,
                  bool& deleted, int timeout);

  /// Returns the keys to delete, or nothing after appending a message to `error`.
  using KeyFinder = std::function<std::optional<QSet<QByteArray>>(QString& error)>;

  /// Marks every record in use with one of the keys that `findKeys` returns as deleted. The file is locked
  /// against reading and writing from before that call until the last mark is written, so what
  /// `findKeys` reads in other files is newer than any record found here. It must not use this file. Fails
  /// like deleteItem(), with its messages, and when `findKeys` fails.
  bool deleteItems(QString& error, int keyWidth, const QString& path, int recordSize,
                   const KeyFinder& findKeys, int timeout);

  /// Makes sure that the file exists. A file that others hold exists.
  bool createDb(QString& error, const QString& path);

  /// Removes the file and drops its index. False, without a message, when the file does not exist, can't
  /// be removed or is held by somebody else.
  bool removeDb(const QString& path);

  /// See ItemIndexCache; always true.
  bool dropItemIndex(const QString& path) { return cache_.dropItemIndex(path); }
  bool dropAllItemIndexes() { return cache_.dropAllItemIndexes(); }

 private:
  struct Lookup;
  struct RecordForm;

  SharedFile::OpenResult openWithWait(SharedFile& file, const QString& path, SharedFile::Mode mode,
                                      int timeout);
  void readRecords(const QString& path, qint64 recordSize, int timeout,
                   const std::function<bool(const BlockReader::Record&)>& visit);
  Lookup getItemIndex(QString& error, const QString& path, QByteArrayView key, const RecordForm& form);
  void fillIndex(QString& error, ItemIndex& index, const QString& path, const RecordForm& form);
  bool tryWrite(QString& error, const QString& path, QByteArrayView record, const RecordForm& form,
                int timeout);
  void updateIndex(const QString& path, QByteArrayView key, const Lookup& lookup, qint64 appendedNumber);
  static void markDeleted(SharedFile& file, const QSet<QByteArray>& keys, const RecordForm& form);
  bool eraseItem(QString& error, const QString& path, QByteArrayView key, const RecordForm& form,
                 int timeout);

  ItemIndexCache& cache_;
  LockWaiter& waiter_;
};

}  // namespace parlexo
