// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/core/run_stores.h"
#include "base/call_runner.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "connection/client/gateway_access.h"

namespace parlexo {

/// Ends a run, however far it came: hides the progress box, releases the contacts, saves the status log,
/// then closes the session if one is held. Nothing here fails aloud.
void shutDown(const RunState& state, RunStores& stores, Progress& progress, CallRunner& runner);

/// Closes the session with the gateway, without the proxy that all other calls use; does nothing when no
/// session is held. The answer is not looked at, so the wait for it is short.
void endSession(const RunState& state, CallRunner& runner);

}  // namespace parlexo
