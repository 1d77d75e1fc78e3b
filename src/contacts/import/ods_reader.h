// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>

#include <QString>

#include "contacts/import/workbook_builder.h"
#include "contacts/import/zip_archive.h"

namespace parlexo {

class WorkbookXml;

/// Reads the cells of an .ods workbook.
class OdsReader {
 public:
  OdsReader(ZipArchive& archive, WorkbookBuilder& builder) : archive_(archive), builder_(builder) {}

  /// False when the content is missing or is no XML; the builder may have a better message.
  [[nodiscard]] bool read();

 private:
  void readStyle(WorkbookXml& xml);
  void readTable(WorkbookXml& xml);
  void readRow(WorkbookXml& xml);
  /// `repeats` rows from row_ on.
  void readCell(WorkbookXml& xml, int repeats);

  ZipArchive& archive_;
  WorkbookBuilder& builder_;
  std::set<QString> hiddenStyles_;  ///< of tables
  std::size_t sheet_ = 0;
  int row_ = 0;
  int column_ = 0;
};

}  // namespace parlexo
