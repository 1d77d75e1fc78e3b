// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include <QByteArrayView>
#include <QtGlobal>

#include "contacts/database_operation.h"
#include "contacts/shared_file.h"

namespace parlexo {

/// Reads the records of an open database file in order, in blocks of about 1 MB. One system call per record
/// would be slow for a large database on a network folder.
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

  /// `file` is open at its beginning and contains `size` bytes, in records of `recordSize` bytes. Throws
  /// `failures.outOfMemory` if no block can be allocated.
  BlockReader(SharedFile& file, qint64 size, qint64 recordSize, const Failures& failures);

  /// Returns the next record, or nullopt at the end of the file. An incomplete last record is filled up from
  /// the record before it. Throws `failures.read` if reading fails.
  [[nodiscard]] std::optional<Record> next();

 private:
  bool readBlock();
  void completeLastRecord();

  SharedFile& file_;
  qint64 left_;
  qint64 recordSize_;
  Failures failures_;
  qint64 capacity_;
  // The record before the block, followed by the block.
  std::vector<char> buffer_;
  qint64 position_ = 0;
  qint64 read_ = 0;    // bytes of the block read from the file
  qint64 filled_ = 0;  // likewise, including the completion of the last record
};

}  // namespace parlexo
