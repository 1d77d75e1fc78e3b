// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>

#include <stdsoap2.h>

#include "protocol/soap_context.h"

namespace parlexo::protocol {

/// How often a wait looks whether it was cancelled.
inline constexpr std::chrono::milliseconds waitingSlice{50};

[[nodiscard]] bool isCancelled(const IoPatience& patience);

/// Connects to `host`, a name or a numeric address. Its addresses are tried in the resolver's order: the next
/// one when the last has failed, or beside it when it has not connected within `patience.nextAddress`. The
/// first connection wins, the others are dropped. Returns a socket whose calls don't block;
/// SOAP_INVALID_SOCKET when the host has no address, none of them connects in time, or the exchange was
/// cancelled.
[[nodiscard]] SOAP_SOCKET connectToHost(const std::string& host, int port, const IoPatience& patience);

}  // namespace parlexo::protocol
