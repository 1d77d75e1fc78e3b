// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>

#include <stdsoap2.h>

#include "protocol/soap_context.h"

namespace parlexo::protocol {

/// The interval at which waits poll for cancellation.
inline constexpr std::chrono::milliseconds pollInterval{50};

[[nodiscard]] bool isCancelled(const IoPatience& patience);

/// Connects to `host`, a name or numeric address. Tries its addresses in the resolver's order: the next one
/// as soon as one has failed, or in parallel if one has not connected within `patience.nextAddress`. The
/// first connection is used, the others are dropped. Blocks. Returns a non-blocking socket, or
/// SOAP_INVALID_SOCKET if the host has no address, no attempt succeeds in time, or the call is cancelled.
[[nodiscard]] SOAP_SOCKET connectToHost(const std::string& host, int port, const IoPatience& patience);

}  // namespace parlexo::protocol
