// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo::simulator {

/// Makes SIGINT and SIGTERM (on Windows: Ctrl+C and closing the console) wait to be taken; to be called
/// before any thread is started. Peers that are gone no longer end the program.
void holdStopSignals();

/// Waits until the user or the system asks the program to end.
void waitForStopSignal();

}  // namespace parlexo::simulator
