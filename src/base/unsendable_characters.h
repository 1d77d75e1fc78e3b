#pragma once

#include <QString>
#include <QStringList>

namespace parlexo {

/// The characters of `text`, as a reader sees them, that the code page lacks and that would travel as "?":
/// each once, in the order in which they come. One that draws nothing is given by its number, as in "U+200B".
[[nodiscard]] QStringList unsendableCharacters(const QString& text);

}  // namespace parlexo
