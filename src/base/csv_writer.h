// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

namespace parlexo {

/// How cells that a spreadsheet would read as a formula are written. Negative numbers are not formulas.
enum class CsvCells {
  AsTheyAre,  ///< unchanged, for files that are read back
  Harmless,   ///< with a leading apostrophe that makes them text, for files that people open
};

/// Writes a table as CSV (RFC 4180): UTF-8 with a byte order mark, because Excel assumes another encoding
/// without one; commas; CRLF after every row; quotes only around cells that need them.
class CsvWriter {
  Q_DECLARE_TR_FUNCTIONS(CsvWriter)

 public:
  explicit CsvWriter(CsvCells cells);

  /// Appends one row. The first row usually holds the headings.
  void addRow(const QStringList& cells);

  [[nodiscard]] const QByteArray& bytes() const { return bytes_; }

  /// Writes the file atomically: an existing file is replaced only after the new one is complete on disk, and
  /// is unchanged on failure. Returns an empty string, or an error message for the user that names the file
  /// and the reason.
  [[nodiscard]] QString save(const QString& path) const;

 private:
  CsvCells cells_;
  QByteArray bytes_;
};

}  // namespace parlexo
