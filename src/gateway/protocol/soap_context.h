#pragma once

#include <cstddef>
#include <functional>

struct soap;

namespace parlexo::protocol {

/// How long the input and output of a context may take, and who may end them early.
struct IoPatience {
  int connectSeconds = 30;
  int silenceSeconds = 300;  ///< longest wait for the next byte, sending and receiving
  /// Polled every 50 ms while the context waits; true ends the exchange with an error. May be empty.
  std::function<bool()> isCancelled;
  /// Called with the number of bytes each time that the system has taken some of the request. May be empty.
  std::function<void(std::size_t)> onSent;
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
