// SPDX-License-Identifier: GPL-3.0-or-later
#include <csignal>

#include "app/process.h"

namespace parlexo {

void prepareProcess() {
  std::signal(SIGPIPE, SIG_IGN);
}

QStringList programArguments(int argc, char** argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  return arguments;
}

}  // namespace parlexo
