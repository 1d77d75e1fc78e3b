// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace parlexo {

/// The characters of `text`, as a reader sees them, that would be sent as "?": those that the code page lacks
/// and the control characters that XML forbids. Each is listed once, in order of appearance. A control
/// character is given by its name, as in "BEL (bell)", any other that draws nothing by its number, as in
/// "U+200B".
[[nodiscard]] QStringList unsendableCharacters(const QString& text);

}  // namespace parlexo
