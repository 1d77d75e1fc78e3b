// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>
#include <utility>
#include <vector>

#include <QString>

#include "contacts/import/workbook_builder.h"
#include "contacts/import/zip_archive.h"

namespace parlexo {

class WorkbookXml;

/// Reads the cells of an .xlsx workbook into a builder: first the list of sheets, the shared texts and the
/// date formats, then each sheet. `archive` and `builder` must outlive the reader.
class XlsxReader {
 public:
  XlsxReader(ZipArchive& archive, WorkbookBuilder& builder) : archive_(archive), builder_(builder) {}

  /// Returns false if a part is missing or not XML; the builder may have a more specific message.
  [[nodiscard]] bool read();

 private:
  struct Relation {
    QString id;
    QString type;
    QString part;
  };
  struct SheetEntry {
    QString name;
    QString relation;
    bool isHidden;
  };
  struct Place {
    int row = 0;
    int column = 0;
  };

  [[nodiscard]] std::vector<Relation> readRelations(const QString& ofPart);
  [[nodiscard]] bool readWorkbook(const QString& part);
  [[nodiscard]] bool readTexts(const QString& part);
  [[nodiscard]] bool readStyles(const QString& part);
  [[nodiscard]] bool readSheet(const SheetEntry& entry, const QString& part);
  void readCell(WorkbookXml& xml, std::size_t sheet, Place place);
  void setNumber(std::size_t sheet, Place place, const QString& written, std::size_t style);

  ZipArchive& archive_;
  WorkbookBuilder& builder_;
  std::vector<SheetEntry> sheets_;
  std::size_t firstText_ = 0;
  std::size_t textCount_ = 0;
  std::vector<bool> dateStyles_;
  bool since1904_ = false;
};

}  // namespace parlexo
