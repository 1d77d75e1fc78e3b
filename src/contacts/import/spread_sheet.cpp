// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/spread_sheet.h"

#include <algorithm>

#include <QFile>

#include "contacts/import/workbook_readers.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

enum class WorkbookKind { None, Packed, Binary };

constexpr QByteArrayView packedStart("PK\x03\x04", 4);
constexpr QByteArrayView binaryStart("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);

WorkbookKind kindOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return WorkbookKind::None;
  const QByteArray start = file.read(binaryStart.size());
  if (start.startsWith(packedStart)) return WorkbookKind::Packed;
  if (start.startsWith(binaryStart)) return WorkbookKind::Binary;
  return WorkbookKind::None;
}

}  // namespace

QString unreadFormulasText() {
  return u"The formulas of this workbook can't be read, so their cells are empty here. "
         "Save it as .xlsx and import that file."_s;
}

bool CSpreadSheet::isWorkbook(const QString& path) {
  return kindOf(path) != WorkbookKind::None;
}

QString CSpreadSheet::read(const QString& path, const ImportLimits& limits, const CancelFlag& cancel) {
  sheets_.clear();
  QString problem;
  switch (kindOf(path)) {
    case WorkbookKind::Packed:
      problem = readPackedWorkbook(path, limits, cancel, sheets_);
      break;
    case WorkbookKind::Binary:
      problem = readBinaryWorkbook(path, limits, cancel, sheets_);
      break;
    case WorkbookKind::None:
      return u"The file is not a workbook."_s;
  }
  std::stable_partition(sheets_.begin(), sheets_.end(),
                        [](const NamedSheet& sheet) { return !sheet.isHidden; });
  for (NamedSheet& sheet : sheets_)
    if (sheet.isHidden) sheet.name += QLatin1String(" (hidden)");
  if (problem.isEmpty() && sheets_.empty() && !cancel.isRaised())
    problem = u"The workbook has no sheet with a cell in it."_s;
  return problem;
}

}  // namespace parlexo
