// SPDX-License-Identifier: GPL-3.0-or-later
#include <csignal>

#include "app/platform.h"

namespace parlexo {

void prepareProcess() {
  std::signal(SIGPIPE, SIG_IGN);
}

// The system menu is provided by the window manager and can't be extended.
void addToSystemMenu(QWidget& /*window*/, const QString& /*text*/) {}

bool isSystemMenuEntry(const void* /*message*/) {
  return false;
}

}  // namespace parlexo
