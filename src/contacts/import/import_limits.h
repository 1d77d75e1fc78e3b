// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace parlexo {

/// How much a file may hold to be imported. Whatever goes beyond is no list of contacts, or a file made to
/// fill the memory.
struct ImportLimits {
  qint64 fileBytes = 64LL << 20;
  qint64 unpackedBytes = 256LL << 20;  ///< of all parts of a packed workbook together
  int rows = 1'048'576;                ///< what spreadsheet programs can hold
  int columns = 1000;
  int sheets = 256;
  qsizetype cellLength = 32'767;      ///< characters, likewise
  qsizetype textLength = 64LL << 20;  ///< characters of all cells together
  qsizetype cells = 12LL << 20;       ///< of all sheets together
};

}  // namespace parlexo
