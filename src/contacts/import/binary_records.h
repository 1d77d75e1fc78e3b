// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QByteArrayView>

namespace parlexo {

/// What libfreexl does not report of a sheet in an .xls workbook.
struct BinarySheet {
  bool isHidden = false;
  bool hasFormulas = false;  ///< libfreexl shows their cells as empty
};

/// The sheets of a workbook stream ([MS-XLS]; Excel 5 and later), in the order in which libfreexl counts
/// them. `stream` is untrusted; records that it cuts short are ignored.
[[nodiscard]] std::vector<BinarySheet> readBinarySheets(QByteArrayView stream);

}  // namespace parlexo
