// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

namespace parlexo {

/// Returns the content of a stream, such as "Workbook", of a compound file, the container of .xls workbooks
/// ([MS-CFB], versions 3 and 4). Returns an empty array if the stream is missing or the file is damaged.
/// `file` is untrusted: chains of sectors are limited to the length of the file.
[[nodiscard]] QByteArray readCompoundStream(QByteArrayView file, QStringView streamName);

/// Properties of a sheet in an .xls workbook that libfreexl does not report.
struct BinarySheet {
  bool isHidden = false;
  bool hasFormulas = false;  ///< libfreexl reads their cells as empty
};

/// Returns the sheets of a workbook stream ([MS-XLS]; Excel 5 and later) in the order of libfreexl. `stream`
/// is untrusted; a truncated record is ignored.
[[nodiscard]] std::vector<BinarySheet> readBinarySheets(QByteArrayView stream);

}  // namespace parlexo
