// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/client/gateway_access.h"

#include "base/code_page.h"

namespace parlexo {

GatewayAccess gatewayAccess(const RunState& state, const GatewayTimeouts& timeouts) {
  const auto bytes = [](const QString& text) { return toCodePage(text).toStdString(); };
  return {.endpoint = bytes(state.gateway.endpoint),
          .proxyUser = bytes(state.proxy.user),
          .proxyPassword = bytes(state.proxy.password),
          .proxyHost = bytes(state.proxy.host),
          .proxyPort = state.proxy.port,
          .timeouts = timeouts};
}

}  // namespace parlexo
