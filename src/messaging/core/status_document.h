// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include "messaging/core/status_log.h"

namespace parlexo {

/// The text of the file "Status.xml" (docs/file-formats.md). Values are written without escapes, so a status
/// with a quotation mark makes the text malformed XML; its lines can still be read one by one.

/// The result of readStatusDocument().
struct StatusDocument {
  std::vector<StatusEntry> entries;  ///< in the order of the text; receipts may repeat
  QString error;  ///< why the XML parser rejected the text, with line and column; empty if it did not

  Q_DECLARE_TR_FUNCTIONS(StatusDocument)
};

/// Writes UTF-8, one line per entry, with unescaped values.
[[nodiscard]] QByteArray writeStatusDocument(const std::vector<StatusEntry>& entries);

/// Reads `text` as XML. Of the root's children only the first `maxElements` are read,
/// regardless of their names.
/// Control characters that XML forbids are removed without an error. After any other error the entries are
/// those of all lines that can be read on their own.
[[nodiscard]] StatusDocument readStatusDocument(const QByteArray& text, int maxElements);

/// The exact inverse of writeStatusDocument(), for any status text. Returns nullopt if `text` can't be its
/// output.
[[nodiscard]] std::optional<std::vector<StatusEntry>> readOwnStatusDocument(const QByteArray& text);

}  // namespace parlexo
