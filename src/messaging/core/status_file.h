#pragma once

#include <QString>

#include "messaging/core/status_log.h"

namespace parlexo {

class Notifier;

/// The file "Status.xml" in which the status log lasts from run to run (docs/file-formats.md).
class StatusFile {
 public:
  /// The reader looks at this many child elements; the writer, checking after the fact, writes one more.
  static constexpr int elementsRead = 1000;
  static constexpr int entriesWritten = 1001;

  explicit StatusFile(QString path) : path_(std::move(path)) {}

  /// Replaces the contents of `log` by the file's. A missing file is a warning, one that cannot be read
  /// or is not well-formed XML an error with the reason; both leave the log empty.
  void load(StatusLog& log, Notifier& notifier);

  /// Writes the log, replacing the file as a whole. A file that could not be read before is first kept
  /// beside it as "Status.xml.bad". Returns false when the disk refuses; the old file is then still there
  /// (or its "bad" copy) and the log stays marked as modified.
  bool save(StatusLog& log);

  /// The bytes of the file for this log: UTF-8, one line per entry, values as they are, without escapes.
  [[nodiscard]] static QByteArray serialise(const StatusLog& log);

  [[nodiscard]] const QString& path() const { return path_; }

 private:
  [[nodiscard]] bool keepDamagedFile();

  QString path_;
  bool damaged_ = false;
};

}  // namespace parlexo
