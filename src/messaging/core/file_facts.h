// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QCoreApplication>
#include <QString>

namespace parlexo {

/// The properties of a file to send.
struct FileFacts {
  enum class State { Missing, NoFile, Unwritable, Empty, TooLarge, Sendable };

  QString name;  ///< without its folders
  State state = State::Missing;
  qint64 size = 0;           ///< bytes
  qint64 limit = 0;          ///< maximum size in bytes
  std::optional<int> pages;  ///< of a document; nullopt if not counted or unknown

  /// A one-line description for the user.
  [[nodiscard]] QString text() const;

  Q_DECLARE_TR_FUNCTIONS(FileFacts)
};

/// Reads the properties of the file at `path` except `pages`. Blocks, possibly long on a network folder.
[[nodiscard]] FileFacts fileFacts(const QString& path, qint64 limit);

/// Counts the pages of the TIFF or PDF document at `path`; reduced-resolution images in a TIFF don't count.
/// Returns nullopt if the file is in neither format, unreadable, damaged, protected by a password or larger
/// than 64 MB, or if counting takes more than ten seconds or 512 MB. Blocks; thread-safe.
[[nodiscard]] std::optional<int> pageCount(const QString& path);

}  // namespace parlexo
