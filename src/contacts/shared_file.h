// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace parlexo {

/// A file on a network folder shared by several users. The mode in which it is opened determines how others
/// may open it at the same time. The destructor closes the file.
class SharedFile {
 public:
  /// The access, and the users who are locked out until the file is closed.
  enum class Mode {
    Read,    ///< read; allows other readers
    Write,   ///< read and write; exclusive
    Erase,   ///< read and write, to mark records deleted; allows readers
    Create,  ///< only creates a missing file; allows readers and writers
    Remove,  ///< remove(); exclusive. The only mode that does not create a missing file
  };
  enum class OpenResult {
    Opened,
    SharingViolation,  ///< locked by another user; a retry may succeed
    Failed,            ///< any other error; a retry is pointless
  };

  SharedFile() = default;
  ~SharedFile();
  SharedFile(const SharedFile&) = delete;
  SharedFile& operator=(const SharedFile&) = delete;

  /// Opens the file at `path` without waiting, and creates it if missing. Closes a file that was open before.
  /// Writes are synchronous: data is on the storage when write() returns.
  [[nodiscard]] OpenResult open(const QString& path, Mode mode);
  void close();

  /// Returns the length in bytes, or nullopt on error.
  [[nodiscard]] std::optional<qint64> size() const;

  /// Moves to a byte position, which may be beyond the end. Returns false on error.
  [[nodiscard]] bool seek(qint64 position);

  /// Reads up to `length` bytes at the position and advances it. Returns the number of bytes, less than
  /// `length` only at the end of the file, or nullopt on error.
  [[nodiscard]] std::optional<qint64> read(char* buffer, qint64 length);

  /// Writes all bytes at the position and advances it. On error returns false and truncates the file to its
  /// previous length, because an incomplete record would misalign the following ones.
  [[nodiscard]] bool write(QByteArrayView bytes);

  /// Removes the file, which must be open in Mode::Remove. Returns false on error.
  [[nodiscard]] bool remove();

 private:
  static constexpr std::intptr_t noHandle = -1;

  std::intptr_t handle_ = noHandle;  ///< the system's handle or descriptor
  QByteArray path_;                  ///< on POSIX, where files are removed by path
};

}  // namespace parlexo
