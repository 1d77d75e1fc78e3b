// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/shut_down.h"

#include "connection/client/gateway.h"

namespace parlexo {

namespace {
constexpr GatewayTimeouts atExit{.whole = timeouts::sessionEnd};
}  // namespace

void shutDown(const RunState& state, RunStores& stores, Progress& progress, CallRunner& runner) {
  progress.hide();
  stores.releaseContacts();
  stores.saveStatusLog();
  endSession(state, runner);
}

void endSession(const RunState& state, CallRunner& runner) {
  if (state.session.isEmpty()) return;
  RunState direct = state;
  direct.proxy = {};
  const Gateway gateway(direct, runner, atExit);
  (void)gateway.call<&GatewayClient::sessionEnd>(state.session);
}

}  // namespace parlexo
