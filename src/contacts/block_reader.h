// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include <QByteArrayView>
#include <QtGlobal>

#include "contacts/database_operation.h"
#include "contacts/shared_file.h"

namespace parlexo {

/// Reads the records of an open database file one after the other, in blocks of about 1 MB: one system call
/// per record would make reading a large database over a network slow.
class BlockReader {
 public:
  struct Record {
    QByteArrayView bytes;  ///< valid until the next call of next()
    bool isWhole;          ///< false when the file ends within the record
  };
  struct Failures {
    Failure outOfMemory;
    Failure read;
  };

  /// Reads `file`, open at its beginning and `size` bytes long, in records of `recordSize` bytes. Throws
  /// `failures.outOfMemory` when there is no memory for a block.
  BlockReader(SharedFile& file, qint64 size, qint64 recordSize, const Failures& failures);

  /// The next record, or nothing at the end of the file. A record that the end of the file cuts short is
  /// completed from the one before it. Throws `failures.read` when reading fails.
  [[nodiscard]] std::optional<Record> next();

 private:
  bool readBlock();
  void completeLastRecord();

  SharedFile& file_;
  qint64 left_;
  qint64 recordSize_;
  Failures failures_;
  qint64 capacity_;
  // The record before the block, then the block.
  std::vector<char> buffer_;
  qint64 position_ = 0;
  qint64 read_ = 0;    // bytes of the block that come from the file
  qint64 filled_ = 0;  // the same with the last record completed
};

}  // namespace parlexo
