// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <mutex>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "server/http_message.h"
#include "simulator/gateway_state.h"

namespace parlexo::protocol {
class RequestReader;
}

namespace parlexo::simulator {

/// Handles the requests of the HTTP server: executes operations and applies the active faults. Thread-safe.
class GatewayService {
 public:
  explicit GatewayService(const Options& options) : options_(options), state_(options) {}

  [[nodiscard]] server::HttpReply answer(const server::HttpRequest& request);
  /// Returns whether a new connection must be closed.
  [[nodiscard]] bool refusesConnection();

  /// Locks the state, calls `access(state)` and returns its result. `access` must not call this object.
  template <class Access>
  auto with(Access access) {
    const std::lock_guard lock(mutex_);
    return access(state_);
  }

 private:
  [[nodiscard]] server::HttpReply route(const server::HttpRequest& request);
  [[nodiscard]] server::HttpReply answerLocator(const server::HttpRequest& request);
  [[nodiscard]] server::HttpReply answerOperation(const server::HttpRequest& request);
  template <class Operation>
  [[nodiscard]] server::HttpReply perform(const Operation& operation, protocol::RequestReader& reader);
  void appendToLog(const QString& line);

  const Options options_;
  std::mutex mutex_;
  GatewayState state_;
  QStringList pendingLog_;  ///< passed to Options::log after unlocking
};

}  // namespace parlexo::simulator
