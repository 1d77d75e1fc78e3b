// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

namespace parlexo {

/// Returns the content of a stream, such as "Workbook", in a compound file, the container of .xls workbooks
/// ([MS-CFB], version 3 and 4). Empty when there is no such stream or the file is damaged. `file` is
/// untrusted: no chain of sectors is followed further than the file is long.
[[nodiscard]] QByteArray readCompoundStream(QByteArrayView file, QStringView streamName);

}  // namespace parlexo
