// SPDX-License-Identifier: GPL-3.0-or-later
#include <csignal>

#include "simulator/stop_signals.h"

namespace parlexo::simulator {

namespace {

sigset_t stopSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  return signals;
}

}  // namespace

void blockStopSignals() {
  const sigset_t signals = stopSignals();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  signal(SIGPIPE, SIG_IGN);
}

void waitForStopSignal() {
  const sigset_t signals = stopSignals();
  int received = 0;
  while (sigwait(&signals, &received) != 0) {
  }
}

}  // namespace parlexo::simulator
