// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>

#include <stdsoap2.h>

namespace parlexo::protocol {

enum class Direction { Sending, Receiving };

// The socket calls that differ per platform. On failure the error code is in soap_socket_errno.

/// Initialises the socket library. Call before resolving a name; further calls are no-ops.
void prepareSockets();

/// Creates a non-blocking socket for `address`. Returns SOAP_INVALID_SOCKET on failure.
[[nodiscard]] SOAP_SOCKET openSocket(const addrinfo& address);

/// Starts to connect; the socket becomes ready for sending when the attempt has ended. Returns false if it
/// failed immediately.
[[nodiscard]] bool startConnecting(SOAP_SOCKET socket, const addrinfo& address);

/// Whether a connection attempt that has ended was successful.
[[nodiscard]] bool hasConnected(SOAP_SOCKET socket);

/// Disables Nagle's algorithm and limits how much unsent data the system buffers.
void tuneForRequests(SOAP_SOCKET socket);

/// Waits up to `patience` until the socket is ready for `direction` or has failed; the next call on it
/// reports the failure. Returns a positive value then, 0 on timeout, a negative value if waiting failed.
[[nodiscard]] int waitForSocket(SOAP_SOCKET socket, Direction direction, std::chrono::milliseconds patience);

/// Sends up to `count` bytes. Returns the number of bytes sent, or a negative value on failure.
[[nodiscard]] std::ptrdiff_t sendSome(SOAP_SOCKET socket, const char* bytes, std::size_t count);

/// Receives up to `size` bytes. Returns their number, 0 at the end of the stream, or a negative value on
/// failure.
[[nodiscard]] std::ptrdiff_t receiveSome(SOAP_SOCKET socket, char* buffer, std::size_t size);

/// Whether the last call failed only because it would have blocked.
[[nodiscard]] bool wouldBlock();

}  // namespace parlexo::protocol
