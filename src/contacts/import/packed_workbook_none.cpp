// SPDX-License-Identifier: GPL-3.0-or-later
// Stands in for the reader of .xlsx and .ods in builds without libzip.

#include "contacts/import/workbook_readers.h"

namespace parlexo {

using namespace Qt::StringLiterals;

QString readPackedWorkbook(const QString& /*path*/, const ImportLimits& /*limits*/,
                           const CancelFlag& /*cancel*/, NamedSheets& /*sheets*/) {
  return u"This program was built without the reader of .xlsx and .ods workbooks. Save the sheet as CSV."_s;
}

}  // namespace parlexo
