// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/socket_io.h"

#include <algorithm>
#include <chrono>

#include <stdsoap2.h>

#include "protocol/socket_calls.h"
#include "protocol/socket_connect.h"

namespace parlexo::protocol {

namespace {

using Clock = std::chrono::steady_clock;

const IoPatience& patienceOf(const ::soap* context) {
  return *static_cast<const IoPatience*>(context->user);
}

/// Waits until the socket is ready or has failed, which the next call on it then tells. False when the
/// deadline passed, the exchange was cancelled or there is no socket.
bool waitFor(SOAP_SOCKET socket, Direction direction, Clock::time_point deadline,
             const IoPatience& patience) {
  // Without an address the runtime writes to a connection that was never opened; it would be waited for.
  if (!soap_valid_socket(socket)) return false;
  while (!isCancelled(patience) && Clock::now() < deadline) {
    const int ready = waitForSocket(socket, direction, waitingSlice);
    if (ready != 0) return ready > 0;
  }
  return false;
}

Clock::time_point silenceDeadline(const IoPatience& patience) {
  return std::min(Clock::now() + patience.silence, patience.deadline);
}

SOAP_SOCKET openConnection(::soap* context, const char* /*endpoint*/, const char* host, int port) {
  const bool throughProxy = context->proxy_host != nullptr;
  const SOAP_SOCKET socket = connectToHost(throughProxy ? context->proxy_host : host,
                                           throughProxy ? context->proxy_port : port, patienceOf(context));
  if (soap_valid_socket(socket))
    tuneForRequests(socket);
  else
    context->error = SOAP_TCP_ERROR;
  return socket;
}

int sendBytes(::soap* context, const char* bytes, std::size_t count) {
  const IoPatience& patience = patienceOf(context);
  while (count > 0) {
    if (!waitFor(context->socket, Direction::Sending, silenceDeadline(patience), patience)) return SOAP_EOF;
    const std::ptrdiff_t sent = sendSome(context->socket, bytes, count);
    if (sent < 0 && wouldWait()) continue;
    if (sent < 0) {
      context->errnum = soap_socket_errno;
      return SOAP_EOF;
    }
    if (patience.onSent) patience.onSent(static_cast<std::size_t>(sent));
    bytes += sent;
    count -= static_cast<std::size_t>(sent);
  }
  return SOAP_OK;
}

/// The number of bytes received; 0 at the end of the stream, after an error, when the peer has been silent
/// for too long and when the exchange was cancelled.
std::size_t receiveBytes(::soap* context, char* buffer, std::size_t size) {
  const IoPatience& patience = patienceOf(context);
  const auto deadline = silenceDeadline(patience);
  while (waitFor(context->socket, Direction::Receiving, deadline, patience)) {
    const std::ptrdiff_t received = receiveSome(context->socket, buffer, size);
    if (received >= 0) return static_cast<std::size_t>(received);
    if (wouldWait()) continue;
    context->errnum = soap_socket_errno;
    break;
  }
  return 0;
}

}  // namespace

void installSocketIo(::soap& context, const IoPatience& patience) {
  // The runtime carries one untyped pointer for its callbacks; they only ever read through it.
  context.user = const_cast<IoPatience*>(&patience);
  context.fopen = openConnection;
  context.fsend = sendBytes;
  context.frecv = receiveBytes;
}

}  // namespace parlexo::protocol
