// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/process_end.h"

namespace parlexo {

int endProcess(int exitCode) {
  return exitCode;
}

}  // namespace parlexo
