// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/message_file.h"

#include <new>
#include <utility>

#include <QFileInfo>

namespace parlexo {

bool MessageFile::open() {
  // Checked before opening, because opening a device can have side effects.
  if (!QFileInfo(file_.fileName()).isFile()) return false;
  if (!file_.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)) return false;
  length_ = file_.size();
  return !file_.isSequential();
}

MessageFile::ReadResult MessageFile::read() {
  auto bytes = std::make_shared<std::string>();
  try {
    bytes->resize(static_cast<std::size_t>(length_));
  } catch (const std::bad_alloc&) {
    return ReadResult::NoMemory;
  }
  char next = 0;
  if (file_.read(bytes->data(), length_) != length_ || file_.read(&next, 1) != 0) return ReadResult::Failed;
  bytes_ = std::move(bytes);
  return ReadResult::Done;
}

}  // namespace parlexo
