// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace parlexo {

/// Prepares the process; call this first in main(). Ignores SIGPIPE, so that writing to a closed connection
/// returns an error instead of killing the program. On Windows, attaches standard output and error to the
/// console that the program was started from, unless they are redirected.
void prepareProcess();

/// Adds a separator and an entry to the system menu of `window` (the menu of the icon in the title bar). A
/// no-op if `text` is empty or the platform's windows have no system menu.
void addToSystemMenu(QWidget& window, const QString& text);

/// Returns whether `message`, as passed to QWidget::nativeEvent(), means that the user chose that entry.
[[nodiscard]] bool isSystemMenuEntry(const void* message);

}  // namespace parlexo
