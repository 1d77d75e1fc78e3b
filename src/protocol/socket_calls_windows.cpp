// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/socket_calls.h"

namespace parlexo::protocol {

namespace {

/// The size of the system's send buffer in bytes. With a larger one the progress of a file would run ahead,
/// and data would still go out after cancelling.
constexpr int maxUnsentBytes = 64 * 1024;

int startWinsock() {
  WSADATA data;
  return WSAStartup(MAKEWORD(2, 2), &data);
}

int setOption(SOAP_SOCKET socket, int level, int option, int value) {
  return setsockopt(socket, level, option, reinterpret_cast<const char*>(&value), sizeof value);
}

}  // namespace

void prepareSockets() {
  [[maybe_unused]] static const int result = startWinsock();
}

SOAP_SOCKET openSocket(const addrinfo& address) {
  const SOAP_SOCKET socket = ::socket(address.ai_family, address.ai_socktype, 0);
  u_long nonBlocking = 1;
  if (soap_valid_socket(socket)) ioctlsocket(socket, FIONBIO, &nonBlocking);
  return socket;
}

bool startConnecting(SOAP_SOCKET socket, const addrinfo& address) {
  return connect(socket, address.ai_addr, static_cast<int>(address.ai_addrlen)) == 0 || wouldBlock();
}

bool hasConnected(SOAP_SOCKET socket) {
  int error = 0;
  int size = sizeof error;
  return getsockopt(socket, SOL_SOCKET, SO_ERROR, reinterpret_cast<char*>(&error), &size) == 0 && error == 0;
}

void tuneForRequests(SOAP_SOCKET socket) {
  setOption(socket, IPPROTO_TCP, TCP_NODELAY, 1);
  setOption(socket, SOL_SOCKET, SO_SNDBUF, maxUnsentBytes);
}

// WSAPoll does not report refused connections before Windows 10 version 2004; select() does.
int waitForSocket(SOAP_SOCKET socket, Direction direction, std::chrono::milliseconds patience) {
  fd_set ready;
  FD_ZERO(&ready);
  FD_SET(socket, &ready);
  fd_set failed = ready;
  const auto microseconds = std::chrono::duration_cast<std::chrono::microseconds>(patience).count();
  timeval wait{0, static_cast<long>(microseconds)};
  const bool isSending = direction == Direction::Sending;
  return select(0, isSending ? nullptr : &ready, isSending ? &ready : nullptr, &failed, &wait);
}

std::ptrdiff_t sendSome(SOAP_SOCKET socket, const char* bytes, std::size_t count) {
  return ::send(socket, bytes, static_cast<int>(count), 0);
}

std::ptrdiff_t receiveSome(SOAP_SOCKET socket, char* buffer, std::size_t size) {
  return ::recv(socket, buffer, static_cast<int>(size), 0);
}

bool wouldBlock() {
  return WSAGetLastError() == WSAEWOULDBLOCK;
}

}  // namespace parlexo::protocol
