// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

namespace parlexo {

/// What becomes of a cell that a spreadsheet would take for a formula; a negative number is none.
enum class CsvCells {
  AsTheyAre,  ///< nothing: the file is to be read back unchanged
  Harmless,   ///< it gets an apostrophe in front, so that it stays a text: the file is for people
};

/// A table as a CSV file: UTF-8 with a byte order mark (without which Excel reads another code page), commas,
/// CRLF after every row, and quotes around the cells that need them, as RFC 4180 has it.
class CsvWriter {
 public:
  explicit CsvWriter(CsvCells cells);

  /// Appends one row; the first one usually holds the headings.
  void addRow(const QStringList& cells);

  [[nodiscard]] const QByteArray& bytes() const { return bytes_; }

  /// Writes the file as a whole: one that is there already is replaced only once the new one is complete on
  /// the disk. Returns an empty text, or a sentence for the user that says which file could not be written
  /// and why; whatever was at `path` is then still there.
  [[nodiscard]] QString save(const QString& path) const;

 private:
  CsvCells cells_;
  QByteArray bytes_;
};

}  // namespace parlexo
