// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace parlexo {

/// Puts a separator and an entry into the system menu of `window`, the one behind the icon of its title bar.
/// Does nothing for an empty `text` and where windows have no such menu of their own.
void addToSystemMenu(QWidget& window, const QString& text);

/// Whether `message`, which the window's nativeEvent() got, says that the user has chosen that entry.
[[nodiscard]] bool choosesSystemMenuEntry(const void* message);

}  // namespace parlexo
