// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/fake_gateway.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <utility>

#include "protocol/socket_calls.h"

namespace parlexo::test {

namespace {

using protocol::Direction;

constexpr std::chrono::milliseconds waitingSlice{20};

/// Waits in slices, so that the server can be stopped.
bool waitToRead(SOAP_SOCKET socket, const std::atomic<bool>& isStopping) {
  while (!isStopping) {
    if (protocol::waitForSocket(socket, Direction::Receiving, waitingSlice) > 0) return true;
  }
  return false;
}

std::size_t bodyLength(const std::string& head) {
  const auto at = head.find("Content-Length: ");
  return at == std::string::npos ? 0 : std::strtoul(head.c_str() + at + 16, nullptr, 10);
}

bool isWhole(const std::string& request) {
  const auto end = request.find("\r\n\r\n");
  return end != std::string::npos && request.size() >= end + 4 + bodyLength(request.substr(0, end));
}

SOAP_SOCKET listenOnLoopback(int& port) {
  protocol::prepareSockets();
  addrinfo kind{};
  kind.ai_family = AF_INET;
  kind.ai_socktype = SOCK_STREAM;
  const SOAP_SOCKET listener = protocol::openSocket(kind);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  auto* plain = reinterpret_cast<sockaddr*>(&address);
  socklen_t size = sizeof address;
  if (bind(listener, plain, size) != 0 || listen(listener, 8) != 0) std::abort();
  getsockname(listener, plain, &size);
  port = ntohs(address.sin_port);
  return listener;
}

}  // namespace

FakeGateway::FakeGateway(std::string answer, Manner manner) : answer_(std::move(answer)), manner_(manner) {
  listener_ = listenOnLoopback(port_);
  thread_ = std::thread([this] { serve(); });
}

FakeGateway::~FakeGateway() {
  stop();
  soap_closesocket(listener_);
}

void FakeGateway::stop() {
  isStopping_ = true;
  if (thread_.joinable()) thread_.join();
}

void FakeGateway::setAnswer(std::string answer) {
  const std::lock_guard lock(mutex_);
  answer_ = std::move(answer);
}

std::string FakeGateway::lastRequest() {
  stop();
  return request_;
}

void FakeGateway::serve() {
  while (waitToRead(listener_, isStopping_)) {
    const SOAP_SOCKET connection = accept(listener_, nullptr, nullptr);
    if (!soap_valid_socket(connection)) return;
    answer(connection);
    soap_closesocket(connection);
  }
}

void FakeGateway::answer(SOAP_SOCKET connection) {
  request_.clear();
  std::array<char, 65536> buffer{};
  while (!isWhole(request_) && waitToRead(connection, isStopping_)) {
    const std::ptrdiff_t count = protocol::receiveSome(connection, buffer.data(), buffer.size());
    if (count <= 0) return;
    request_.append(buffer.data(), static_cast<std::size_t>(count));
  }
  ++requestCount_;
  if (manner_ == Manner::Silent) {
    waitToRead(connection, isStopping_);
    return;
  }
  const std::string answer = [this] {
    const std::lock_guard lock(mutex_);
    return answer_;
  }();
  if (manner_ == Manner::Drops) return sendInDrops(connection, answer);
  if (!sendAll(connection, answer)) return;
  const std::string blanks(65536, ' ');
  while (manner_ == Manner::Endless && !isStopping_ && sendAll(connection, blanks)) {
  }
}

bool FakeGateway::sendAll(SOAP_SOCKET connection, std::string_view bytes) {
  while (!bytes.empty()) {
    const std::ptrdiff_t count = protocol::sendSome(connection, bytes.data(), bytes.size());
    if (count <= 0) return false;
    bytesSent_ += static_cast<std::size_t>(count);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

void FakeGateway::sendInDrops(SOAP_SOCKET connection, std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size() && !isStopping_; ++at) {
    if (!sendAll(connection, bytes.substr(at, 1))) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
}

std::string httpReply(const std::string& body, const std::string& status) {
  return "HTTP/1.1 " + status +
         "\r\nContent-Type: text/xml; charset=utf-8\r\nContent-Length: " + std::to_string(body.size()) +
         "\r\nConnection: close\r\n\r\n" + body;
}

std::string envelope(const std::string& body, const std::string& header) {
  return R"(<?xml version="1.0" encoding="UTF-8"?>)"
         R"(<S:Envelope xmlns:S="http://schemas.xmlsoap.org/soap/envelope/")"
         R"( xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance")"
         R"( xmlns:xsd="http://www.w3.org/2001/XMLSchema")"
         R"( xmlns:m="http://www.parlexo.example/onlineCommunication/binding">)" +
         header + "<S:Body>" + body + "</S:Body></S:Envelope>";
}

std::string httpBody(const std::string& message) {
  const auto end = message.find("\r\n\r\n");
  return end == std::string::npos ? std::string() : message.substr(end + 4);
}

int closedPort() {
  int port = 0;
  soap_closesocket(listenOnLoopback(port));
  return port;
}

}  // namespace parlexo::test
