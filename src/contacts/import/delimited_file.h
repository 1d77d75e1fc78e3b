// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>

#include <QString>

#include "base/call_runner.h"
#include "contacts/import/import_limits.h"
#include "contacts/import/sheet.h"

namespace parlexo {

enum class TextEncoding { Utf8, Utf16LittleEndian, Utf16BigEndian, CodePage };

/// How a text file is to be read.
struct DelimitedFormat {
  TextEncoding encoding = TextEncoding::Utf8;
  QChar delimiter = u',';

  bool operator==(const DelimitedFormat&) const = default;
};

/// The delimiters that are looked for, the likelier first.
inline constexpr QChar knownDelimiters[] = {u',', u';', u'\t', u'|'};

/// What came of reading: the rows and, where something was wrong, a message for the user.
struct SheetReading {
  Sheet sheet;
  QString problem;
};

/// Why the file can't be imported before even looking into it: it is missing, no file, empty or too large;
/// empty when nothing is in the way.
[[nodiscard]] QString fileProblem(const QString& path, const ImportLimits& limits = {});

/// Detects the encoding: the byte order mark decides, else UTF-8 if all bytes are valid, else the code page.
/// The delimiter is that of a first line "sep=;" if there is one, else the known one that cuts the first rows
/// most evenly, where several do so the one that leaves a column of numbers. Reads the whole file once; a
/// file that can't be read has some format.
[[nodiscard]] DelimitedFormat detectFormat(const QString& path, const ImportLimits& limits,
                                           const CancelFlag& cancel);

/// Reads at most the first `maxRows` rows, without a first line "sep=;". The problem of a file that can't be
/// read or is broken names the line; a cancelled reading ends early and has none.
[[nodiscard]] SheetReading readDelimited(const QString& path, const DelimitedFormat& format,
                                         const ImportLimits& limits, const CancelFlag& cancel,
                                         int maxRows = std::numeric_limits<int>::max());

}  // namespace parlexo
