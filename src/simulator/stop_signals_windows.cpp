// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include "simulator/stop_signals.h"

namespace parlexo::simulator {

namespace {

HANDLE stopEvent() {
  static const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  return event;
}

// Runs on a thread of the system's. Closing the console ends the process as soon as this returns, so it
// stays here and leaves that to main().
BOOL WINAPI takeStop(DWORD kind) {
  SetEvent(stopEvent());
  if (kind != CTRL_C_EVENT && kind != CTRL_BREAK_EVENT) Sleep(INFINITE);
  return TRUE;
}

}  // namespace

void holdStopSignals() {
  stopEvent();
  SetConsoleCtrlHandler(takeStop, TRUE);
}

void waitForStopSignal() {
  WaitForSingleObject(stopEvent(), INFINITE);
}

}  // namespace parlexo::simulator
