// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/message_file.h"

#include <new>

#include <QFileInfo>

namespace parlexo {

bool MessageFile::open() {
  // Asked before opening, as opening a device may already set something going.
  if (!QFileInfo(file_.fileName()).isFile()) return false;
  if (!file_.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)) return false;
  length_ = file_.size();
  return !file_.isSequential();
}

QString MessageFile::name() const {
  return QFileInfo(file_.fileName()).fileName();
}

MessageFile::Content MessageFile::read() {
  auto bytes = std::make_shared<std::string>();
  try {
    bytes->resize(static_cast<std::size_t>(length_));
  } catch (const std::bad_alloc&) {
    return {Reading::NoMemory, nullptr};
  }
  char beyond = 0;
  if (file_.read(bytes->data(), length_) != length_ || file_.read(&beyond, 1) != 0)
    return {Reading::Failed, nullptr};
  return {Reading::Done, std::move(bytes)};
}

}  // namespace parlexo
