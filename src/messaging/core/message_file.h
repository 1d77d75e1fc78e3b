// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include <QFile>
#include <QString>

namespace parlexo {

/// The contents of a file. Shared, because an abandoned call still uses them.
using FileBytes = std::shared_ptr<const std::string>;

/// A file to send. Stays open from the check of its length until it has been read.
class MessageFile {
 public:
  enum class ReadResult { Done, NoMemory, Failed };

  explicit MessageFile(const QString& path) : file_(path) {}

  /// Opens the file for reading and writing; a file without write permission can't be sent. Returns false if
  /// the path names no regular file or opening fails.
  [[nodiscard]] bool open();

  /// Length in bytes when the file was opened.
  [[nodiscard]] qint64 length() const { return length_; }

  /// Reads the open file into memory. Fails if reading fails or the length has changed since open(), because
  /// another program is writing to the file.
  [[nodiscard]] ReadResult read();

  /// The contents; null until read() has succeeded.
  [[nodiscard]] const FileBytes& bytes() const { return bytes_; }

 private:
  QFile file_;
  qint64 length_ = 0;
  FileBytes bytes_;
};

}  // namespace parlexo
