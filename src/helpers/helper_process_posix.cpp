// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

#include "helpers/helper_process.h"

namespace parlexo {
namespace {

void limit(__rlimit_resource_t resource, rlim_t value) {
  const rlimit both{value, value};
  setrlimit(resource, &both);
}

rlim_t memoryInUse() {
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace

void sandboxProcess(std::size_t memory, unsigned seconds) {
  limit(RLIMIT_CPU, seconds);
  limit(RLIMIT_AS, memoryInUse() + memory);
  limit(RLIMIT_CORE, 0);
  limit(RLIMIT_FSIZE, 0);
}

}  // namespace parlexo
