// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/block_reader.h"

#include <algorithm>

namespace parlexo {

namespace {

constexpr qint64 blockBytes = 1 << 20;

}  // namespace

BlockReader::BlockReader(SharedFile& file, qint64 size, qint64 recordSize, const Failures& failures)
    : file_(file),
      left_(size),
      recordSize_(recordSize),
      failures_(failures),
      capacity_(std::max<qint64>(1, std::min(blockBytes, size) / recordSize) * recordSize),
      buffer_(allocate(recordSize + capacity_, failures.outOfMemory)) {}

std::optional<BlockReader::Record> BlockReader::next() {
  if (position_ == filled_ && !readBlock()) return std::nullopt;
  const QByteArrayView bytes(&buffer_[static_cast<std::size_t>(recordSize_ + position_)], recordSize_);
  position_ += recordSize_;
  return Record{bytes, position_ <= read_};
}

bool BlockReader::readBlock() {
  const auto previousEnd = buffer_.begin() + recordSize_ + filled_;
  std::copy(previousEnd - recordSize_, previousEnd, buffer_.begin());
  const auto count = file_.read(&buffer_[static_cast<std::size_t>(recordSize_)], std::min(left_, capacity_));
  require(count.has_value(), failures_.read);
  left_ -= *count;
  position_ = 0;
  read_ = *count;
  completeLastRecord();
  return filled_ > 0;
}

void BlockReader::completeLastRecord() {
  filled_ = read_;
  const qint64 tail = read_ % recordSize_;
  if (tail == 0) return;
  const auto end = buffer_.begin() + recordSize_ + read_;
  std::copy(end - recordSize_, end - tail, end);
  filled_ += recordSize_ - tail;
}

}  // namespace parlexo
