// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "connection/client/gateway_access.h"

namespace parlexo::test {

/// Access to a server of the test, with short timeouts.
[[nodiscard]] inline GatewayAccess accessTo(std::string endpoint) {
  GatewayAccess access;
  access.endpoint = std::move(endpoint);
  access.timeouts = {.connect = std::chrono::seconds(5), .silence = std::chrono::seconds(5)};
  return access;
}

}  // namespace parlexo::test
