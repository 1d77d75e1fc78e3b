// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <cstdio>

#include "base/process_end.h"

namespace parlexo {

// The runtime of MinGW-w64 frees its thread-specific data at exit under a lock. A thread of the system's,
// such as one of its security library, may have gone with that lock; then the process would stay for ever.
int endProcess(int exitCode) {
  std::fflush(nullptr);
  TerminateProcess(GetCurrentProcess(), static_cast<UINT>(exitCode));
  return exitCode;
}

}  // namespace parlexo
