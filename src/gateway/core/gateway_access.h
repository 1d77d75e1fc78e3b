#pragma once

#include <string>

#include "base/run_state.h"

namespace parlexo {

/// Time-outs of one exchange, in seconds. Tests shorten them here and nowhere else.
struct GatewayTimeouts {
  int connect = 30;
  int silence = 300;  ///< longest wait for the next byte, sending and receiving
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
