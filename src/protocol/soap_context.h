// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

struct soap;

namespace parlexo::protocol {

/// Finds the addresses of a host, in their numeric form and in the order in which they should be tried; empty
/// when it has none. May block; is called on a separate thread that may outlive the exchange.
using Resolver = std::function<std::vector<std::string>(const std::string& host)>;

/// How long the input and output of a context may take, and who may end them early.
struct IoPatience {
  std::chrono::milliseconds connect{};      ///< looking up the name and connecting, all addresses together
  std::chrono::milliseconds nextAddress{};  ///< how long one address is tried before the next joins it
  std::chrono::milliseconds silence{};      ///< longest wait for the next byte, sending and receiving
  /// When the exchange ends at the latest, even in the middle of a transfer.
  std::chrono::steady_clock::time_point deadline = std::chrono::steady_clock::time_point::max();
  /// Polled every 50 ms while the context waits; true ends the exchange with an error. May be empty.
  std::function<bool()> isCancelled{};
  /// Called with the number of bytes each time that the system has taken some of the request. May be empty.
  std::function<void(std::size_t)> onSent{};
  /// Empty for the system's.
  Resolver resolve{};
};

/// A context for one exchange with the gateway: the gateway's namespaces, limits on what a hostile peer may
/// make it read, and waits that obey `patience`, which must outlive the context. Strings are written one
/// character per byte and read as UTF-8. Null when there is no memory for it. The caller frees it with
/// freeContext().
[[nodiscard]] ::soap* newClientContext(const IoPatience& patience);

/// The same without a connection: for envelopes that are read from a stream (`is`) or written to one (`os`).
[[nodiscard]] ::soap* newStreamContext();

/// Releases what the context has handed out, and the context itself. Null is allowed.
void freeContext(::soap* context);

}  // namespace parlexo::protocol
