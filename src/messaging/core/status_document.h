// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QString>

#include "messaging/core/status_log.h"

namespace parlexo {

/// The text of the file "Status.xml" (docs/file-formats.md). Values are written without escapes, so a status
/// with a quotation mark makes a document that no XML parser accepts; its lines can be read all the same.

/// What was read from such a text.
struct StatusDocument {
  std::vector<StatusEntry> entries;  ///< in the order of the text; two may have the same receipt
  QString fault;  ///< why the XML parser rejected the text, with line and column; empty when it did not
};

/// UTF-8, one line per entry, values as they are.
[[nodiscard]] QByteArray writeStatusDocument(const std::vector<StatusEntry>& entries);

/// Reads `text` as XML. Of the children of the root the first `mostElements` are read, regardless of their
/// names. Control characters that XML forbids are left out without being a fault. A text with another fault
/// yields the entries of all lines that can be read on their own.
[[nodiscard]] StatusDocument readStatusDocument(const QByteArray& text, int mostElements);

/// The exact inverse of writeStatusDocument(), for any status text. Returns nullopt for a text with anything
/// that it does not write.
[[nodiscard]] std::optional<std::vector<StatusEntry>> readOwnStatusDocument(const QByteArray& text);

}  // namespace parlexo
