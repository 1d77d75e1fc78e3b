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
/// (docs/file-formats.md). Several users may share the files on a network folder. Every operation opens and
/// closes the file; a missing file is created empty.
///
/// All operations except createDb() and removeDb() retry every 500 ms while another user has locked the file,
/// until more than `timeout` whole seconds have passed. On failure an operation appends one bracketed
/// message, such as "[readAllItems:5 - Read from database error!]", to `error` and returns false. On success
/// `error` is unchanged.
class ItemDatabase {
 public:
  /// Called with each record; returns false to stop. The bytes are only valid during the call.
  using Visitor = std::function<bool(QByteArrayView record)>;

  static constexpr char recordDeleted = 0;
  static constexpr char recordInUse = 1;

  ItemDatabase(ItemIndexCache& cache, LockWaiter& waiter);

  /// Calls `visitor` for every record in the order of the file; for deleted ones only if `includeDeleted`. An
  /// incomplete last record is filled up from the record before it. Stopping early counts as success.
  bool readAllItems(QString& error, int recordSize, const QString& path, const Visitor& visitor, int timeout,
                    bool includeDeleted = false);

  /// Stores `record` (`recordSize` bytes including the key; its state byte is ignored and stored as in use).
  /// Overwrites the data of the record with that key, reuses the slot of a deleted record with that key, or
  /// appends. If the last record of the file is incomplete, appends at the next record boundary. Fails with
  /// message 5 if the number of complete records differed eleven times in a row from the index just read.
  bool writeItem(QString& error, int keyWidth, const QString& path, int recordSize, QByteArrayView record,
                 int timeout);

  /// Marks the record in use with this key as deleted. Sets `deleted` to whether there was one.
  bool deleteItem(QString& error, int keyWidth, const QString& path, QByteArrayView key, int recordSize,
                  bool& deleted, int timeout);

  /// Returns the keys to delete, or nullopt after appending a message to `error`.
  using KeyFinder = std::function<std::optional<QSet<QByteArray>>(QString& error)>;

  /// Marks all records in use with the keys returned by `findKeys` as deleted. The file is locked against
  /// reading and writing from before that call until all marks are written. What `findKeys` reads from other
  /// files is therefore newer than any record of this file, which it must not access. Fails like
  /// deleteItem(), with the same messages, or if `findKeys` fails.
  bool deleteItems(QString& error, int keyWidth, const QString& path, int recordSize,
                   const KeyFinder& findKeys, int timeout);

  /// Creates the file unless it exists. A file locked by another user exists.
  bool createDb(QString& error, const QString& path);

  /// Removes the file and drops its index. Returns false, without a message, if the file does not exist,
  /// can't be removed or is locked by another user.
  bool removeDb(const QString& path);

  /// See ItemIndexCache. Always return true.
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
