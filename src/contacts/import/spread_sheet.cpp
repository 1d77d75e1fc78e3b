// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/spread_sheet.h"

#include <algorithm>

#include <QFile>

#include "contacts/import/workbook_readers.h"

namespace parlexo {

namespace {

enum class WorkbookKind { None, Packed, Binary };

constexpr QByteArrayView packedStart("PK\x03\x04", 4);
constexpr QByteArrayView binaryStart("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);

WorkbookKind detectKind(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return WorkbookKind::None;
  const QByteArray start = file.read(binaryStart.size());
  if (start.startsWith(packedStart)) return WorkbookKind::Packed;
  if (start.startsWith(binaryStart)) return WorkbookKind::Binary;
  return WorkbookKind::None;
}

}  // namespace

QString unreadFormulasText() {
  return CSpreadSheet::tr(
      "The formulas of this workbook can't be read, so their cells are empty here. "
      "Save it as .xlsx and import that file.");
}

bool CSpreadSheet::isWorkbook(const QString& path) {
  return detectKind(path) != WorkbookKind::None;
}

QString CSpreadSheet::read(const QString& path, const ImportLimits& limits, const CancelFlag& cancel) {
  sheets_.clear();
  QString problem;
  switch (detectKind(path)) {
    case WorkbookKind::Packed:
      problem = readPackedWorkbook(path, limits, cancel, sheets_);
      break;
    case WorkbookKind::Binary:
      problem = readBinaryWorkbook(path, limits, cancel, sheets_);
      break;
    case WorkbookKind::None:
      return tr("The file is not a workbook.");
  }
  std::stable_partition(sheets_.begin(), sheets_.end(),
                        [](const NamedSheet& sheet) { return !sheet.isHidden; });
  for (NamedSheet& sheet : sheets_)
    if (sheet.isHidden) sheet.name = tr("%1 (hidden)").arg(sheet.name);
  if (problem.isEmpty() && sheets_.empty() && !cancel.isRaised())
    problem = tr("The workbook has no sheet with a cell in it.");
  return problem;
}

}  // namespace parlexo
