// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>

#include <stdsoap2.h>

namespace parlexo::protocol {

enum class Direction { Sending, Receiving };

// The calls on sockets that every system makes in its own way. Unless they say otherwise they leave the
// reason of a failure to soap_socket_errno.

/// Must be called before a name is looked up; calling it again does nothing.
void prepareSockets();

/// A socket for `address` whose calls return at once, or SOAP_INVALID_SOCKET.
[[nodiscard]] SOAP_SOCKET openSocket(const addrinfo& address);

/// Begins to connect, which has come to its end when the socket is ready for sending. False when it was
/// refused at once.
[[nodiscard]] bool startConnecting(SOAP_SOCKET socket, const addrinfo& address);

/// Whether connecting, which has come to its end, succeeded.
[[nodiscard]] bool hasConnected(SOAP_SOCKET socket);

/// Makes pieces of a request go out at once, and keeps what waits unsent in the system small.
void tuneForRequests(SOAP_SOCKET socket);

/// Waits until the socket is ready for `direction` or has failed, which the next call on it tells: positive
/// then, 0 when `patience` has passed before, negative on failure.
[[nodiscard]] int waitForSocket(SOAP_SOCKET socket, Direction direction, std::chrono::milliseconds patience);

/// Sends what the system takes of `count` bytes. How many these were, or negative.
[[nodiscard]] std::ptrdiff_t sendSome(SOAP_SOCKET socket, const char* bytes, std::size_t count);

/// Receives up to `size` bytes. How many there were, 0 at the end of the stream, or negative.
[[nodiscard]] std::ptrdiff_t receiveSome(SOAP_SOCKET socket, char* buffer, std::size_t size);

/// Whether the last call failed only because it would have had to wait.
[[nodiscard]] bool wouldWait();

}  // namespace parlexo::protocol
