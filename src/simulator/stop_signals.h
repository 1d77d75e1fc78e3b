// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo::simulator {

/// Blocks SIGINT and SIGTERM (on Windows: handles Ctrl+C and closing of the console) for waitForStopSignal()
/// and ignores SIGPIPE. Must be called before any thread is started.
void blockStopSignals();

/// Blocks until a stop signal arrives.
void waitForStopSignal();

}  // namespace parlexo::simulator
