// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/system_menu.h"

namespace parlexo {

// Here the menu behind a window's icon belongs to the window manager.
void addToSystemMenu(QWidget& /*window*/, const QString& /*text*/) {}

bool choosesSystemMenuEntry(const void* /*message*/) {
  return false;
}

}  // namespace parlexo
