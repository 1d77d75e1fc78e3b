// SPDX-License-Identifier: GPL-3.0-or-later
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

#include <cerrno>

#include "protocol/socket_calls.h"

namespace parlexo::protocol {

namespace {

/// How much unsent data the system buffers, in bytes. With the default of some megabytes a whole file would
/// count as sent at once, and would still go out after cancelling.
constexpr int maxUnsentBytes = 64 * 1024;

}  // namespace

void prepareSockets() {}

SOAP_SOCKET openSocket(const addrinfo& address) {
  return ::socket(address.ai_family, address.ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
}

bool startConnecting(SOAP_SOCKET socket, const addrinfo& address) {
  return connect(socket, address.ai_addr, address.ai_addrlen) == 0 || errno == EINPROGRESS;
}

bool hasConnected(SOAP_SOCKET socket) {
  int error = 0;
  socklen_t size = sizeof error;
  return getsockopt(socket, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
}

void tuneForRequests(SOAP_SOCKET socket) {
  const int on = 1;
  setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  setsockopt(socket, IPPROTO_TCP, TCP_NOTSENT_LOWAT, &maxUnsentBytes, sizeof maxUnsentBytes);
}

int waitForSocket(SOAP_SOCKET socket, Direction direction, std::chrono::milliseconds patience) {
  const short events = direction == Direction::Sending ? POLLOUT : POLLIN;
  pollfd watched{socket, events, 0};
  const int ready = poll(&watched, 1, static_cast<int>(patience.count()));
  return ready < 0 && errno == EINTR ? 0 : ready;
}

std::ptrdiff_t sendSome(SOAP_SOCKET socket, const char* bytes, std::size_t count) {
  return ::send(socket, bytes, count, MSG_NOSIGNAL);
}

std::ptrdiff_t receiveSome(SOAP_SOCKET socket, char* buffer, std::size_t size) {
  return ::recv(socket, buffer, size, 0);
}

bool wouldBlock() {
  return errno == EAGAIN || errno == EINTR;
}

}  // namespace parlexo::protocol
