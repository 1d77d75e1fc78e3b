// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/locator/gateway_search.h"

#include <memory>

namespace parlexo {

bool GatewaySearch::run(RunState& state) const {
  const ProxyAddress configured = parts_.discovery.configured();
  switch (locate(state, configured)) {
    case ServerLocator::Outcome::Located:
      if (!configured.isEmpty()) useConfiguredProxy(state);
      return true;
    case ServerLocator::Outcome::ProxyRefusal:
      return logInAndRepeat(state);
    case ServerLocator::Outcome::NotLocated:
      return false;
  }
  return false;
}

ServerLocator::Outcome GatewaySearch::locate(RunState& state, const ProxyAddress& preconfigured) const {
  const auto located = std::make_shared<RunState>(state);
  const auto outcome = std::make_shared<ServerLocator::Outcome>(ServerLocator::Outcome::NotLocated);
  const bool ended = parts_.runner.run(
      [locator = parts_.locator, located, outcome, preconfigured](const CancelFlag& cancel) {
        *outcome = locator.locate(*located, preconfigured, cancel);
      });
  if (!ended) return ServerLocator::Outcome::NotLocated;
  state.gateway = located->gateway;
  return *outcome;
}

void GatewaySearch::useConfiguredProxy(RunState& state) const {
  // Queried again, because settings often exclude the local network, where the gateway may be.
  const ProxyAddress proxy = parts_.discovery.configuredFor(QUrl(state.gateway.endpoint));
  state.proxy = {.password = {}, .user = {}, .host = proxy.host, .port = proxy.port};
}

bool GatewaySearch::logInAndRepeat(RunState& state) const {
  parts_.progress.hide();
  const auto entered = parts_.login.ask();
  if (!entered) return false;
  parts_.progress.show();
  state.proxy = *entered;
  // Without a host the download would bypass the proxy, which the user did not ask for.
  if (state.proxy.host.isEmpty()) return false;
  return locate(state, {}) == ServerLocator::Outcome::Located;
}

}  // namespace parlexo
