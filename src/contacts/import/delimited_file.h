// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>

#include <QCoreApplication>
#include <QString>

#include "base/call_runner.h"
#include "contacts/import/sheet.h"

namespace parlexo {

enum class TextEncoding { Utf8, Utf16LittleEndian, Utf16BigEndian, CodePage };

/// How to read a text file.
struct DelimitedFormat {
  TextEncoding encoding = TextEncoding::Utf8;
  QChar delimiter = u',';

  bool operator==(const DelimitedFormat&) const = default;
};

/// The delimiters that detectFormat() tries, the most likely first.
inline constexpr QChar knownDelimiters[] = {u',', u';', u'\t', u'|'};

/// The rows read, and a message for the user if an error occurred.
struct SheetReading {
  Q_DECLARE_TR_FUNCTIONS(SheetReading)

 public:
  Sheet sheet;
  QString problem;
};

/// Checks a file before it is read. Returns a message for the user if it is missing, not a regular file,
/// empty, too large or can't be opened, otherwise an empty string.
[[nodiscard]] QString fileProblem(const QString& path, const ImportLimits& limits = {});

/// Detects the format of a text file. The encoding follows from the byte order mark; without one it is UTF-8
/// if all bytes are valid, otherwise the code page. The delimiter is taken from a first line such as "sep=;";
/// without one it is the known delimiter that splits the first rows most evenly, preferably with a column of
/// numbers. Reads the whole file once. The result is unspecified if the file can't be read.
[[nodiscard]] DelimitedFormat detectFormat(const QString& path, const ImportLimits& limits,
                                           const CancelFlag& cancel);

/// Reads up to `maxRows` rows, skipping a first line such as "sep=;". The message for malformed text contains
/// the line number. Ends early, without a message, when `cancel` is raised.
[[nodiscard]] SheetReading readDelimited(const QString& path, const DelimitedFormat& format,
                                         const ImportLimits& limits, const CancelFlag& cancel,
                                         int maxRows = std::numeric_limits<int>::max());

}  // namespace parlexo
