// SPDX-License-Identifier: GPL-3.0-or-later
// Reads .xlsx and .ods workbooks, which are XML in a zip archive.

#include "contacts/import/ods_reader.h"
#include "contacts/import/workbook_builder.h"
#include "contacts/import/workbook_readers.h"
#include "contacts/import/xlsx_reader.h"
#include "contacts/import/zip_archive.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

bool readParts(ZipArchive& archive, WorkbookBuilder& builder) {
  if (archive.openPart(u"content.xml"_s)) return OdsReader(archive, builder).read();
  return XlsxReader(archive, builder).read();
}

}  // namespace

QString readPackedWorkbook(const QString& path, const ImportLimits& limits, const CancelFlag& cancel,
                           NamedSheets& sheets) {
  ZipArchive archive(path, limits.unpackedBytes, cancel);
  WorkbookBuilder builder(limits, cancel);
  const bool isRead = archive.isOpen() && readParts(archive, builder);
  if (archive.isTooLarge())
    return CSpreadSheet::tr(
               "The workbook has more than %L1 MB once it is unpacked. That much can't be imported.")
        .arg(limits.unpackedBytes >> 20);
  if (!builder.problem().isEmpty() || cancel.isRaised()) return builder.problem();
  if (!isRead)
    return CSpreadSheet::tr(
        "The workbook can't be read. It is damaged, protected by a password, or no .xlsx or "
        ".ods workbook.");
  sheets = builder.build();
  return builder.problem();
}

}  // namespace parlexo
