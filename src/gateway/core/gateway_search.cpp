#include "gateway/core/gateway_search.h"

namespace parlexo {

bool GatewaySearch::run(RunState& state) const {
  switch (parts_.locator.locate(state, parts_.discovery.configured())) {
    case ServerLocator::Outcome::Located:
      return true;
    case ServerLocator::Outcome::ProxyRefusal:
      return logInAndRepeat(state);
    case ServerLocator::Outcome::NotLocated:
      return false;
  }
  return false;
}

bool GatewaySearch::logInAndRepeat(RunState& state) const {
  parts_.progress.hide();
  const auto entered = parts_.login.ask();
  if (!entered) return false;
  parts_.progress.show();
  state.proxy = *entered;
  // Without a host the repeat would go straight, which is not what the user agreed to.
  if (state.proxy.host.isEmpty()) return false;
  return parts_.locator.locate(state) == ServerLocator::Outcome::Located;
}

}  // namespace parlexo
