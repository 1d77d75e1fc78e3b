// SPDX-License-Identifier: GPL-3.0-or-later
// Replaces the reader of .xls workbooks in builds without libfreexl.

#include "contacts/import/workbook_readers.h"

namespace parlexo {

QString readBinaryWorkbook(const QString& /*path*/, const ImportLimits& /*limits*/,
                           const CancelFlag& /*cancel*/, NamedSheets& /*sheets*/) {
  return CSpreadSheet::tr(
      "This program was built without the reader of .xls workbooks. Save the sheet as CSV.");
}

}  // namespace parlexo
