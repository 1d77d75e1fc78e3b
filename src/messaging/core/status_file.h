// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <utility>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include "messaging/core/status_log.h"

namespace parlexo {

class Notifier;

/// The file "Status.xml", which stores the status log between runs (docs/file-formats.md). Several programs
/// may use one file: each save merges the changes of the others first. A lock on "Status.xml.lock" serialises
/// them; the system releases it when a program ends, even by a crash.
class StatusFile {
  Q_DECLARE_TR_FUNCTIONS(StatusFile)

 public:
  /// The number of child elements that load() reads. save() checks after counting and writes one more.
  static constexpr int elementsRead = 1000;
  static constexpr int entriesWritten = 1001;
  /// Larger files are rejected. A hundred times the size of a full log.
  static constexpr qint64 maxBytes = 32 * 1024 * 1024;

  /// What save() does if another program does not release the lock in time.
  enum class IfLocked {
    Defer,        ///< fails; the next save retries
    WriteAnyway,  ///< writes without the lock; for the last save of a run
  };
  /// How long save() waits for the lock in each case. load() waits as long as a save that can be deferred,
  /// then reads without the lock.
  struct LockWaits {
    std::chrono::milliseconds deferred{1000};
    std::chrono::milliseconds last{3000};
  };

  /// The bytes of the file, or the reason why it can't be read.
  struct FileContent {
    QByteArray bytes;
    QString error;  ///< empty on success
  };

  explicit StatusFile(QString path) : StatusFile(std::move(path), LockWaits()) {}
  StatusFile(QString path, LockWaits lockWaits) : path_(std::move(path)), lockWaits_(lockWaits) {}

  /// Replaces the contents of `log` by the file's. Warns if the file is missing. Reports an error with the
  /// reason if it can't be read, and leaves the log empty; from malformed XML the lines that can be read on
  /// their own are loaded, and the error says how many.
  void load(StatusLog& log, Notifier& notifier);

  /// Merges the file into `log`, then replaces the file. If the log has more than `elementsRead` entries, the
  /// newest ones are written. A file that could not be read or parsed is first backed up under a numbered
  /// ".bad" name; at most ten of these exist.
  ///
  /// Returns false if another program holds the lock or a file could not be written. The old file or its
  /// backup then still exists, and the log stays modified, so the next save retries.
  bool save(StatusLog& log, IfLocked ifLocked = IfLocked::Defer);

  [[nodiscard]] const QString& path() const { return path_; }

 private:
  /// Merges a readable file and backs up a rejected one. Returns false if the backup fails.
  [[nodiscard]] bool mergeContent(StatusLog& log, const FileContent& content);

  QString path_;
  LockWaits lockWaits_;
  QByteArray rejected_;  ///< the content that load() could not parse, until it has been backed up
};

}  // namespace parlexo
