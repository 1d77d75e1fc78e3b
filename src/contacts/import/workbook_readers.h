// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>

#include "base/call_runner.h"
#include "contacts/import/import_limits.h"
#include "contacts/import/spread_sheet.h"

namespace parlexo {

/// The readers behind CSpreadSheet, each on a library of its own; where the build has no such library, the
/// reader says so. They return what is wrong, as the user is told, and empty when nothing is.
using NamedSheets = std::vector<CSpreadSheet::NamedSheet>;

/// Reads .xls.
[[nodiscard]] QString readBinaryWorkbook(const QString& path, const ImportLimits& limits,
                                         const CancelFlag& cancel, NamedSheets& sheets);

/// Reads .xlsx and .ods.
[[nodiscard]] QString readPackedWorkbook(const QString& path, const ImportLimits& limits,
                                         const CancelFlag& cancel, NamedSheets& sheets);

}  // namespace parlexo
