// SPDX-License-Identifier: GPL-3.0-or-later
#include <csignal>

#include "app/platform.h"

namespace parlexo {

void prepareProcess() {
  std::signal(SIGPIPE, SIG_IGN);
}

// The menu of a window's icon belongs to the window manager.
void addToSystemMenu(QWidget& /*window*/, const QString& /*text*/) {}

bool isSystemMenuEntry(const void* /*message*/) {
  return false;
}

}  // namespace parlexo
