// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace parlexo {

/// The 8-bit code page of files and wire: the system's ANSI code page on Windows, windows-1252 elsewhere.
/// All characters of the program live in QString; they become bytes only here.

/// `text` as bytes of the code page; a character that the code page lacks becomes "?" (one per UTF-16
/// code point, so that an emoji is one question mark).
[[nodiscard]] QByteArray toCodePage(QStringView text);

/// Bytes of the code page as text. Every byte has a character: the five that windows-1252 leaves undefined
/// map to the C1 control character of the same number, as Windows does.
[[nodiscard]] QString fromCodePage(QByteArrayView bytes);

/// True when every character of `text` survives toCodePage() and back.
[[nodiscard]] bool fitsCodePage(QStringView text);

/// `text` as it reads after a trip through the code page, with "?" for what the code page lacks.
[[nodiscard]] inline QString throughCodePage(QStringView text) {
  return fromCodePage(toCodePage(text));
}

}  // namespace parlexo
