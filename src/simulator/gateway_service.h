// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "server/http_message.h"
#include "simulator/accepted_message.h"
#include "simulator/fault_plan.h"
#include "simulator/gateway_state.h"

namespace parlexo::protocol {
class RequestReader;
}

namespace parlexo::simulator {

/// Everything that lies behind one lock.
struct ServiceState {
  explicit ServiceState(const Options& options) : gateway(options) {}

  GatewayState gateway;
  FaultPlan faults;
  std::vector<RecordedCall> calls;
};

/// The gateway behind its HTTP server: turns requests into operations and operations into replies, with the
/// faults that are set. Every function may be called from any thread.
class GatewayService {
 public:
  explicit GatewayService(const Options& options) : options_(options), state_(options) {}

  [[nodiscard]] server::HttpReply answer(const server::HttpRequest& request);
  [[nodiscard]] bool refusesConnection();

  /// Calls `access(state)` while nobody else touches the state, and returns its result.
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
  void note(const QString& line);

  const Options options_;
  std::mutex mutex_;
  ServiceState state_;
  QStringList unwrittenLog_;
};

}  // namespace parlexo::simulator
