// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace parlexo {

/// Conversion between QString, used throughout the program, and the 8-bit code page of files and requests:
/// the system's ANSI code page on Windows, windows-1252 elsewhere. These functions do not fail.

/// Encodes `text` in the code page. Each code point that the code page lacks becomes one "?", surrogate pairs
/// included.
[[nodiscard]] QByteArray toCodePage(QStringView text);

/// Decodes bytes of the code page. The five bytes that windows-1252 leaves undefined become the C1 control
/// characters with the same number, as on Windows.
[[nodiscard]] QString fromCodePage(QByteArrayView bytes);

/// Returns true if toCodePage() encodes `text` without loss.
[[nodiscard]] bool fitsCodePage(QStringView text);

/// Returns `text` after a round trip through the code page, with "?" for characters that it lacks.
[[nodiscard]] inline QString throughCodePage(QStringView text) {
  return fromCodePage(toCodePage(text));
}

}  // namespace parlexo
