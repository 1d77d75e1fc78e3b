// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>

namespace parlexo {

/// What can be told about a file before it is sent.
struct FileFacts {
  enum class State { Missing, NoFile, Unwritable, Empty, TooLarge, Sendable };

  QString name;  ///< without its folders
  State state = State::Missing;
  qint64 size = 0;           ///< bytes
  qint64 limit = 0;          ///< bytes that may be sent
  std::optional<int> pages;  ///< of a document; none where nobody counts or knows

  /// One line for the user.
  [[nodiscard]] QString text() const;
};

/// Asks the disk, which may take its time on a network folder. `pages` stays empty.
[[nodiscard]] FileFacts fileFacts(const QString& path, qint64 limit);

}  // namespace parlexo
