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
  struct Attempt {
    ServerLocator locator;
    ProxyAddress preconfigured;
    RunState state;
    ServerLocator::Outcome outcome = ServerLocator::Outcome::NotLocated;
  };
  auto attempt = std::make_shared<Attempt>(Attempt{parts_.locator, preconfigured, state});
  const bool ended = parts_.runner.run([attempt](const CancelFlag& cancel) {
    attempt->outcome = attempt->locator.locate(attempt->state, attempt->preconfigured, cancel);
  });
  if (!ended) return ServerLocator::Outcome::NotLocated;
  state.gateway = attempt->state.gateway;
  return attempt->outcome;
}

void GatewaySearch::useConfiguredProxy(RunState& state) const {
  // Asked again: the gateway may be on the local network, which the settings often except.
  const ProxyAddress proxy = parts_.discovery.configuredFor(QUrl(state.gateway.endpoint));
  state.proxy = {.password = {}, .user = {}, .host = proxy.host, .port = proxy.port};
}

bool GatewaySearch::logInAndRepeat(RunState& state) const {
  parts_.progress.hide();
  const auto entered = parts_.login.ask();
  if (!entered) return false;
  parts_.progress.show();
  state.proxy = *entered;
  // Without a host the repeat would go straight, which is not what the user agreed to.
  if (state.proxy.host.isEmpty()) return false;
  return locate(state, {}) == ServerLocator::Outcome::Located;
}

}  // namespace parlexo
