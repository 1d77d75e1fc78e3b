// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include <QFile>
#include <QString>

namespace parlexo {

/// The bytes of a file; shared, because an exchange that is left behind keeps them.
using FileBytes = std::shared_ptr<const std::string>;

/// A file that goes out with a message, open from the check of its length until it has been read.
class MessageFile {
 public:
  explicit MessageFile(const QString& path) : file_(path) {}

  /// Opens the file for reading and writing: the gateway's senders have always asked for both, so that a file
  /// that may not be written is not sent. False when there is no such file, when the path names something
  /// else (a folder, a device, a pipe), and when the system refuses.
  [[nodiscard]] bool open();

  /// Bytes of the open file, as they were at opening.
  [[nodiscard]] qint64 length() const { return length_; }
  /// The path without its folders.
  [[nodiscard]] QString name() const;

  enum class Reading { Done, NoMemory, Failed };
  struct Content {
    Reading reading = Reading::Failed;
    FileBytes bytes;  ///< null unless `reading` is Done
  };
  /// Reads the open file. Fails also when its length has changed since opening: somebody is writing to it.
  [[nodiscard]] Content read();

 private:
  QFile file_;
  qint64 length_ = 0;
};

}  // namespace parlexo
