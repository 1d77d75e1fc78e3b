// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "base/run_state.h"
#include "base/timeouts.h"

namespace parlexo {

/// Timeouts of one call. Tests pass shorter ones.
struct GatewayTimeouts {
  std::chrono::milliseconds connect = timeouts::connect;  ///< name lookup and connecting
  std::chrono::milliseconds silence = timeouts::silence;  ///< maximum wait for the next byte
  std::optional<std::chrono::milliseconds> whole{};       ///< the whole call; nullopt for no limit
};

/// The connection parameters of one call, copied from the run state so that the call owns them. Text is
/// encoded in the code page.
struct GatewayAccess {
  std::string endpoint;
  std::string proxyUser;
  std::string proxyPassword;
  std::string proxyHost;
  int proxyPort = 0;
  GatewayTimeouts timeouts;
};

/// Returns the parameters that follow from the current `state`.
[[nodiscard]] GatewayAccess gatewayAccess(const RunState& state, const GatewayTimeouts& timeouts = {});

}  // namespace parlexo
