// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/socket_connect.h"

#include <algorithm>
#include <future>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "protocol/socket_calls.h"

namespace parlexo::protocol {

namespace {

using Clock = std::chrono::steady_clock;
using Addresses = std::vector<std::string>;

struct AddressListDeleter {
  void operator()(addrinfo* list) const { freeaddrinfo(list); }
};
using AddressList = std::unique_ptr<addrinfo, AddressListDeleter>;

AddressList resolve(const std::string& host, const std::string& port, int flags) {
  prepareSockets();
  addrinfo hints{};
  hints.ai_flags = flags;
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* list = nullptr;
  return AddressList(getaddrinfo(host.c_str(), port.c_str(), &hints, &list) == 0 ? list : nullptr);
}

Addresses systemAddresses(const std::string& host) {
  Addresses addresses;
  const AddressList list = resolve(host, "0", 0);
  for (const addrinfo* each = list.get(); each; each = each->ai_next) {
    char text[NI_MAXHOST];
    if (getnameinfo(each->ai_addr, static_cast<socklen_t>(each->ai_addrlen), text, sizeof text, nullptr, 0,
                    NI_NUMERICHOST) == 0)
      addresses.emplace_back(text);
  }
  return addresses;
}

/// A name lookup can't be interrupted, so it runs on a thread that is detached if it takes too long. Returns
/// no address then.
Addresses resolveAddresses(const std::string& host, Clock::time_point deadline, const IoPatience& patience) {
  if (resolve(host, "0", AI_NUMERICHOST)) return {host};
  std::packaged_task<Addresses()> task(
      [host, resolver = patience.resolve ? patience.resolve : systemAddresses] { return resolver(host); });
  std::future<Addresses> addresses = task.get_future();
  try {
    std::thread(std::move(task)).detach();
  } catch (const std::system_error&) {
    return {};
  }
  while (!isCancelled(patience) && Clock::now() < deadline) {
    if (addresses.wait_for(pollInterval) == std::future_status::ready) return addresses.get();
  }
  return {};
}

/// Closes its socket on destruction.
class Socket {
 public:
  explicit Socket(SOAP_SOCKET socket) : socket_(socket) {}
  ~Socket() {
    if (soap_valid_socket(socket_)) soap_closesocket(socket_);
  }
  Socket(Socket&& other) noexcept : socket_(other.release()) {}
  Socket& operator=(Socket&& other) noexcept {
    std::swap(socket_, other.socket_);
    return *this;
  }

  [[nodiscard]] SOAP_SOCKET get() const { return socket_; }
  [[nodiscard]] SOAP_SOCKET release() { return std::exchange(socket_, SOAP_INVALID_SOCKET); }

 private:
  SOAP_SOCKET socket_;
};

/// Tries the addresses of a host, starting each with a delay while earlier attempts are pending.
class ConnectionRace {
 public:
  ConnectionRace(Addresses addresses, int port, const IoPatience& patience)
      : addresses_(std::move(addresses)), port_(std::to_string(port)), patience_(patience) {}

  [[nodiscard]] SOAP_SOCKET run(Clock::time_point deadline) {
    while (!isCancelled(patience_) && Clock::now() < deadline) {
      if (next_ < addresses_.size() && (running_.empty() || Clock::now() >= nextStart_)) startNext();
      if (running_.empty() && next_ == addresses_.size()) break;
      const SOAP_SOCKET winner = waitForConnection();
      if (soap_valid_socket(winner)) return winner;
    }
    return SOAP_INVALID_SOCKET;
  }

 private:
  void startNext() {
    const AddressList address = resolve(addresses_[next_++], port_, AI_NUMERICHOST);
    nextStart_ = Clock::now() + patience_.nextAddress;
    if (!address) return;
    Socket socket(openSocket(*address));
    if (soap_valid_socket(socket.get()) && startConnecting(socket.get(), *address))
      running_.push_back(std::move(socket));
  }

  /// Waits for one interval in total and drops attempts that have failed. Returns SOAP_INVALID_SOCKET if none
  /// has connected.
  SOAP_SOCKET waitForConnection() {
    const auto share = pollInterval / static_cast<int>(std::max<std::size_t>(running_.size(), 1));
    for (std::size_t i = 0; i < running_.size();) {
      const int ready = waitForSocket(running_[i].get(), Direction::Sending, share);
      if (ready > 0 && hasConnected(running_[i].get())) return running_[i].release();
      if (ready == 0) {
        ++i;
        continue;
      }
      running_.erase(running_.begin() + static_cast<std::ptrdiff_t>(i));
      nextStart_ = Clock::now();
    }
    return SOAP_INVALID_SOCKET;
  }

  Addresses addresses_;
  std::string port_;
  const IoPatience& patience_;
  std::size_t next_ = 0;
  Clock::time_point nextStart_{};
  std::vector<Socket> running_;
};

}  // namespace

bool isCancelled(const IoPatience& patience) {
  return patience.isCancelled && patience.isCancelled();
}

SOAP_SOCKET connectToHost(const std::string& host, int port, const IoPatience& patience) {
  const auto deadline = std::min(Clock::now() + patience.connect, patience.deadline);
  return ConnectionRace(resolveAddresses(host, deadline, patience), port, patience).run(deadline);
}

}  // namespace parlexo::protocol
