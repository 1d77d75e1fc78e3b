#include <csignal>

#include "app/process.h"

namespace parlexo {

void prepareProcess() {
  std::signal(SIGPIPE, SIG_IGN);
}

}  // namespace parlexo
