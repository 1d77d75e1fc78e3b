// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>

#include <QString>

#include "contacts/import/workbook_builder.h"
#include "contacts/import/zip_archive.h"

namespace parlexo {

class WorkbookXml;

/// Reads the cells of an .ods workbook into a builder. `archive` and `builder` must outlive the reader.
class OdsReader {
 public:
  OdsReader(ZipArchive& archive, WorkbookBuilder& builder) : archive_(archive), builder_(builder) {}

  /// Returns false if the content is missing or not XML; the builder may have a more specific message.
  [[nodiscard]] bool read();

 private:
  void readStyle(WorkbookXml& xml);
  void readTable(WorkbookXml& xml);
  void readRow(WorkbookXml& xml);
  /// Sets the cell in `repeats` rows from row_ on.
  void readCell(WorkbookXml& xml, int repeats);

  ZipArchive& archive_;
  WorkbookBuilder& builder_;
  std::set<QString> hiddenStyles_;  ///< of tables
  std::size_t sheet_ = 0;
  int row_ = 0;
  int column_ = 0;
};

}  // namespace parlexo
