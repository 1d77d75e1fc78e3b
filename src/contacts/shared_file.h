// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace parlexo {

/// An open file that several users of a network folder share: how it was opened decides who else may have
/// it open meanwhile. The file is closed, and given free to the others, when the object goes.
class SharedFile {
 public:
  /// What the file is opened for; this also says who is shut out until it is closed.
  enum class Mode {
    Read,    ///< reading; other readers may come in, writers may not
    Write,   ///< reading and writing; nobody else
    Erase,   ///< reading and writing, to mark a record deleted; no other writer
    Create,  ///< nothing but making sure that the file exists; everybody else
    Remove,  ///< remove(); nobody else. The only mode that does not create a missing file
  };
  enum class OpenResult {
    Opened,
    SharingViolation,  ///< somebody else has the file open in a way that excludes this one: try later
    Failed,            ///< anything else; trying again is no use
  };

  SharedFile() = default;
  ~SharedFile();
  SharedFile(const SharedFile&) = delete;
  SharedFile& operator=(const SharedFile&) = delete;

  /// Opens the file at `path` without waiting, and creates it empty when it is missing. A file that was
  /// open before is closed. What is written goes to the storage before a write returns.
  [[nodiscard]] OpenResult open(const QString& path, Mode mode);
  void close();

  /// The length in bytes; nothing when it can't be found out.
  [[nodiscard]] std::optional<qint64> size() const;

  /// Moves to a byte position, which may lie behind the end. False on failure.
  [[nodiscard]] bool seek(qint64 position);

  /// Reads up to `length` bytes from the position on, moving it. Returns how many there were, fewer than
  /// `length` only at the end of the file; nothing on failure.
  [[nodiscard]] std::optional<qint64> read(char* buffer, qint64 length);

  /// Writes all bytes at the position, moving it. False on failure; the file is then no longer than it was
  /// before, so that a half-written record at its end can't shift those that come later.
  [[nodiscard]] bool write(QByteArrayView bytes);

  /// Removes the file, which was opened with Mode::Remove. False on failure.
  [[nodiscard]] bool remove();

 private:
  static constexpr std::intptr_t noHandle = -1;

  std::intptr_t handle_ = noHandle;  ///< as the system gave it
  QByteArray path_;                  ///< where a file is removed by its name
};

}  // namespace parlexo
