#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <memory>
#include <string>

#include <stdsoap2.h>

#include "gateway/protocol/socket_io.h"

namespace parlexo::protocol {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int pollSliceMs = 50;
/// What may wait unsent in the system. Its own measure is megabytes: a whole file would be gone at once as
/// far as anybody can see, and a cancelled one would go on.
constexpr int unsentBytes = 64 * 1024;

struct AddressListDeleter {
  void operator()(addrinfo* list) const { freeaddrinfo(list); }
};
using AddressList = std::unique_ptr<addrinfo, AddressListDeleter>;

const IoPatience& patienceOf(const ::soap* context) {
  return *static_cast<const IoPatience*>(context->user);
}

bool isCancelled(const IoPatience& patience) {
  return patience.isCancelled && patience.isCancelled();
}

/// Waits until the socket is ready for `events` or has failed, which the next call on it then tells. False
/// when the deadline passed, the exchange was cancelled or there is no socket.
bool waitFor(int socket, short events, Clock::time_point deadline, const IoPatience& patience) {
  // Without an address the runtime writes to a connection that was never opened; poll() would wait for it.
  if (!soap_valid_socket(socket)) return false;
  while (!isCancelled(patience)) {
    pollfd watched{socket, events, 0};
    const int ready = poll(&watched, 1, pollSliceMs);
    if (ready > 0) return true;
    if (ready < 0 && errno != EINTR) return false;
    if (Clock::now() >= deadline) return false;
  }
  return false;
}

Clock::time_point silenceDeadline(const IoPatience& patience) {
  return Clock::now() + std::chrono::seconds(patience.silenceSeconds);
}

AddressList lookUp(const char* host, int port) {
  addrinfo hints{};
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (getaddrinfo(host, std::to_string(port).c_str(), &hints, &found) != 0) return nullptr;
  return AddressList(found);
}

bool hasConnected(int socket) {
  int error = 0;
  socklen_t size = sizeof error;
  return getsockopt(socket, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
}

/// A connected, non-blocking socket, or -1.
int connectTo(const addrinfo& address, Clock::time_point deadline, const IoPatience& patience) {
  const int socket = ::socket(address.ai_family, address.ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (socket < 0) return -1;
  const bool started = connect(socket, address.ai_addr, address.ai_addrlen) == 0 || errno == EINPROGRESS;
  if (started && waitFor(socket, POLLOUT, deadline, patience) && hasConnected(socket)) {
    // The request goes out in several pieces; the last one should not wait for an acknowledgement.
    const int on = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    setsockopt(socket, IPPROTO_TCP, TCP_NOTSENT_LOWAT, &unsentBytes, sizeof unsentBytes);
    return socket;
  }
  close(socket);
  return -1;
}

SOAP_SOCKET openConnection(::soap* context, const char* /*endpoint*/, const char* host, int port) {
  const IoPatience& patience = patienceOf(context);
  const auto deadline = Clock::now() + std::chrono::seconds(patience.connectSeconds);
  const bool throughProxy = context->proxy_host != nullptr;
  const AddressList addresses =
      lookUp(throughProxy ? context->proxy_host : host, throughProxy ? context->proxy_port : port);
  for (const addrinfo* each = addresses.get(); each && !isCancelled(patience); each = each->ai_next) {
    const int socket = connectTo(*each, deadline, patience);
    if (socket >= 0) return socket;
  }
  context->error = SOAP_TCP_ERROR;
  return SOAP_INVALID_SOCKET;
}

int sendBytes(::soap* context, const char* bytes, size_t count) {
  const IoPatience& patience = patienceOf(context);
  while (count > 0) {
    if (!waitFor(context->socket, POLLOUT, silenceDeadline(patience), patience)) return SOAP_EOF;
    const ssize_t sent = ::send(context->socket, bytes, count, MSG_NOSIGNAL);
    if (sent < 0 && (errno == EAGAIN || errno == EINTR)) continue;
    if (sent < 0) {
      context->errnum = errno;
      return SOAP_EOF;
    }
    if (patience.onSent) patience.onSent(static_cast<std::size_t>(sent));
    bytes += sent;
    count -= static_cast<size_t>(sent);
  }
  return SOAP_OK;
}

/// The number of bytes received; 0 at the end of the stream, after an error, when the peer has been silent
/// for too long and when the exchange was cancelled.
size_t receiveBytes(::soap* context, char* buffer, size_t size) {
  const IoPatience& patience = patienceOf(context);
  const auto deadline = silenceDeadline(patience);
  while (waitFor(context->socket, POLLIN, deadline, patience)) {
    const ssize_t received = ::recv(context->socket, buffer, size, 0);
    if (received >= 0) return static_cast<size_t>(received);
    if (errno == EAGAIN || errno == EINTR) continue;
    context->errnum = errno;
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
