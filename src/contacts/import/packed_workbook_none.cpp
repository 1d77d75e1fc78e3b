// SPDX-License-Identifier: GPL-3.0-or-later
// Replaces the reader of .xlsx and .ods workbooks in builds without libzip.

#include "contacts/import/workbook_readers.h"

namespace parlexo {

QString readPackedWorkbook(const QString& /*path*/, const ImportLimits& /*limits*/,
                           const CancelFlag& /*cancel*/, NamedSheets& /*sheets*/) {
  return CSpreadSheet::tr(
      "This program was built without the reader of .xlsx and .ods workbooks. Save the sheet as CSV.");
}

}  // namespace parlexo
