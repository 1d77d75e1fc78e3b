// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>

#include "base/call_runner.h"
#include "contacts/import/sheet.h"
#include "contacts/import/spread_sheet.h"

namespace parlexo {

// The readers used by CSpreadSheet. Each is based on a library; in builds without the library, it always
// fails. They return a message for the user on error, otherwise an empty string.

using NamedSheets = std::vector<CSpreadSheet::NamedSheet>;

/// Reads .xls.
[[nodiscard]] QString readBinaryWorkbook(const QString& path, const ImportLimits& limits,
                                         const CancelFlag& cancel, NamedSheets& sheets);

/// Reads .xlsx and .ods.
[[nodiscard]] QString readPackedWorkbook(const QString& path, const ImportLimits& limits,
                                         const CancelFlag& cancel, NamedSheets& sheets);

}  // namespace parlexo
