// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/soap_context.h"

#include <algorithm>

#include <stdsoap2.h>

#include "protocol/socket_calls.h"
#include "protocol/socket_connect.h"

namespace parlexo::protocol {

namespace {

/// Longer than any response of the gateway, in bytes. Longer replies are from another server or malicious.
constexpr ULONG64 maxReplyLength = 32u << 20;
/// Envelope, body, wrapper, field: a response needs four levels, a fault some more. Skipped elements may be
/// nested to any depth, because the runtime skips them without recursion.
constexpr unsigned maxNesting = 64;

using Clock = std::chrono::steady_clock;

const IoPatience& patienceFor(const ::soap* context) {
  return *static_cast<const IoPatience*>(context->user);
}

/// Waits until the socket is ready or has failed; the next call on it reports the failure. Returns false if
/// the deadline has passed, the call was cancelled or there is no socket.
bool waitFor(SOAP_SOCKET socket, Direction direction, Clock::time_point deadline,
             const IoPatience& patience) {
  // The runtime also writes to a connection that could not be opened.
  if (!soap_valid_socket(socket)) return false;
  while (!isCancelled(patience) && Clock::now() < deadline) {
    const int ready = waitForSocket(socket, direction, pollInterval);
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
                                           throughProxy ? context->proxy_port : port, patienceFor(context));
  if (soap_valid_socket(socket))
    tuneForRequests(socket);
  else
    context->error = SOAP_TCP_ERROR;
  return socket;
}

int sendBytes(::soap* context, const char* bytes, std::size_t count) {
  const IoPatience& patience = patienceFor(context);
  while (count > 0) {
    if (!waitFor(context->socket, Direction::Sending, silenceDeadline(patience), patience)) return SOAP_EOF;
    const std::ptrdiff_t sent = sendSome(context->socket, bytes, count);
    if (sent < 0 && wouldBlock()) continue;
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

/// Returns the number of bytes received; 0 at the end of the stream, on an error or timeout, or if the call
/// was cancelled.
std::size_t receiveBytes(::soap* context, char* buffer, std::size_t size) {
  const IoPatience& patience = patienceFor(context);
  const auto deadline = silenceDeadline(patience);
  while (waitFor(context->socket, Direction::Receiving, deadline, patience)) {
    const std::ptrdiff_t received = receiveSome(context->socket, buffer, size);
    if (received >= 0) return static_cast<std::size_t>(received);
    if (wouldBlock()) continue;
    context->errnum = soap_socket_errno;
    break;
  }
  return 0;
}

/// Replaces the runtime's own I/O, which blocks in a single system call for the whole timeout and can't be
/// cancelled.
void installSocketIo(::soap& context, const IoPatience& patience) {
  // The runtime stores one untyped pointer for its callbacks, which only read through it.
  context.user = const_cast<IoPatience*>(&patience);
  context.fopen = openConnection;
  context.fsend = sendBytes;
  context.frecv = receiveBytes;
}

}  // namespace

::soap* newStreamContext() {
  ::soap* context = soap_new();
  if (!context) return nullptr;
  // The reference to the table also makes the linker include the runtime's hooks, which are defined beside
  // it.
  if (!context->namespaces) soap_set_namespaces(context, namespaces);
  context->maxlevel = maxNesting;
  return context;
}

::soap* newClientContext(const IoPatience& patience) {
  ::soap* context = newStreamContext();
  if (!context) return nullptr;
  context->recv_maxlength = maxReplyLength;
  // Requests have one character per byte; replies are Unicode.
  soap_set_imode(context, SOAP_C_UTFSTRING);
  installSocketIo(*context, patience);
  return context;
}

void freeContext(::soap* context) {
  if (!context) return;
  soap_destroy(context);
  soap_end(context);
  soap_free(context);
}

}  // namespace parlexo::protocol
