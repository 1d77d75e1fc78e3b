// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "base/run_state.h"
#include "base/timeouts.h"

namespace parlexo {

/// Time-outs of one exchange. Tests shorten them here and nowhere else.
struct GatewayTimeouts {
  std::chrono::milliseconds connect = timeouts::connect;  ///< looking up the name and connecting
  std::chrono::milliseconds silence = timeouts::silence;  ///< longest wait for the next byte
  std::optional<std::chrono::milliseconds> whole{};       ///< all of the exchange; none for no limit
};

/// All that one exchange with the gateway needs to know, copied out of the run's state so that the
/// exchange owns it. Text is in the bytes of the code page.
struct GatewayAccess {
  std::string endpoint;
  std::string proxyUser;
  std::string proxyPassword;
  std::string proxyHost;
  int proxyPort = 0;
  GatewayTimeouts timeouts;
};

/// The access that `state` describes at this moment.
[[nodiscard]] GatewayAccess gatewayAccess(const RunState& state, const GatewayTimeouts& timeouts = {});

}  // namespace parlexo
