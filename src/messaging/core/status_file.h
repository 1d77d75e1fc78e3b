// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <utility>

#include <QByteArray>
#include <QString>

#include "messaging/core/status_log.h"

namespace parlexo {

class Notifier;

/// The file "Status.xml" in which the status log lasts from run to run (docs/file-formats.md). Several
/// programs may use one file: a save takes in what the others have written. Programs take turns by a lock on
/// "Status.xml.lock", which the system releases when a program ends, however it ends.
class StatusFile {
 public:
  /// load() reads this many child elements; save(), checking after the fact, writes one more.
  static constexpr int elementsRead = 1000;
  static constexpr int entriesWritten = 1001;
  /// A larger file counts as one that can't be read: a hundred times the size of a full log.
  static constexpr qint64 mostBytes = 32 * 1024 * 1024;

  /// What save() does when another program keeps the lock for too long.
  enum class IfLocked {
    Defer,        ///< gives up, for the next save to try again
    WriteAnyway,  ///< writes without the lock: for the last save of a run
  };
  /// How long save() waits for the lock first, for each of these cases. load() waits as long as a save that
  /// may be deferred, then reads without the lock.
  struct LockWaits {
    std::chrono::milliseconds deferred{1000};
    std::chrono::milliseconds last{3000};
  };

  /// The bytes of the file, or why they can't be read.
  struct FileContent {
    QByteArray bytes;
    QString error;  ///< empty when the bytes were read
  };

  explicit StatusFile(QString path) : StatusFile(std::move(path), LockWaits()) {}
  StatusFile(QString path, LockWaits lockWaits) : path_(std::move(path)), lockWaits_(lockWaits) {}

  /// Replaces the contents of `log` by the file's. A missing file is a warning. One that cannot be read
  /// is an error with the reason and leaves the log empty; of one that is not well-formed XML the entries
  /// whose line can be read on its own are loaded, and the error says how many these are.
  void load(StatusLog& log, Notifier& notifier);

  /// Merges into `log` what other programs have written, then replaces the file as a whole; of more than
  /// `elementsRead` entries the newest are written. Before a file that could not be read or parsed is
  /// replaced it is kept under a numbered ".bad" name, of which there are at most ten.
  ///
  /// Returns false when another program holds the lock or a file could not be written. The old
  /// file, or its ".bad" name, is then still there, and the log stays modified so that the next save tries
  /// again.
  bool save(StatusLog& log, IfLocked ifLocked = IfLocked::Defer);

  [[nodiscard]] const QString& path() const { return path_; }

 private:
  [[nodiscard]] bool mergeAndKeepRejected(StatusLog& log, const FileContent& content);

  QString path_;
  LockWaits lockWaits_;
  QByteArray rejected_;  ///< the content that load() could not parse and that is not kept as ".bad" yet
};

}  // namespace parlexo
