// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include "simulator/stop_signals.h"

namespace parlexo::simulator {

namespace {

HANDLE stopEvent() {
  static const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  return event;
}

// Called on a system thread. When the console is closed, Windows ends the process as soon as this returns, so
// this sleeps until main() has returned.
BOOL WINAPI handleStop(DWORD kind) {
  SetEvent(stopEvent());
  if (kind != CTRL_C_EVENT && kind != CTRL_BREAK_EVENT) Sleep(INFINITE);
  return TRUE;
}

}  // namespace

void blockStopSignals() {
  stopEvent();
  SetConsoleCtrlHandler(handleStop, TRUE);
}

void waitForStopSignal() {
  WaitForSingleObject(stopEvent(), INFINITE);
}

}  // namespace parlexo::simulator
