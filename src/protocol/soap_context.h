// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

struct soap;

namespace parlexo::protocol {

/// Resolves a host name to numeric addresses, in the order in which to try them; empty on failure. May block.
/// Called on a separate thread that may outlive the call.
using Resolver = std::function<std::vector<std::string>(const std::string& host)>;

/// Time limits and callbacks for the network I/O of a context.
struct IoPatience {
  std::chrono::milliseconds connect{};      ///< name lookup and connecting, for all addresses together
  std::chrono::milliseconds nextAddress{};  ///< how long to try one address before also trying the next
  std::chrono::milliseconds silence{};      ///< maximum wait for the next byte, sending or receiving
  /// When the call ends at the latest, even during a transfer.
  std::chrono::steady_clock::time_point deadline = std::chrono::steady_clock::time_point::max();
  /// Polled every 50 ms during waits; the call fails when it returns true. May be empty.
  std::function<bool()> isCancelled{};
  /// Called with the number of bytes of the request that the system has just accepted. May be empty.
  std::function<void(std::size_t)> onSent{};
  /// Empty for the system's resolver.
  Resolver resolve{};
};

/// Creates a context for one call to the gateway, with the gateway's namespaces and limits on what a
/// malicious peer can make it read. Its I/O is subject to `patience`, which must outlive it. Strings are
/// written one character per byte and read as UTF-8. The caller owns the context and frees it with
/// freeContext(). Null if out of memory.
[[nodiscard]] ::soap* newClientContext(const IoPatience& patience);

/// Creates a context without a connection, for reading envelopes from a stream (`is`) and writing them to one
/// (`os`).
[[nodiscard]] ::soap* newStreamContext();

/// Frees a context and everything allocated in it. No-op for null.
void freeContext(::soap* context);

}  // namespace parlexo::protocol
