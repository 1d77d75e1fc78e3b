// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <tuple>
#include <utility>

#include "base/call_runner.h"
#include "base/run_state.h"
#include "connection/client/call_argument.h"
#include "connection/client/gateway_access.h"
#include "connection/client/gateway_client.h"
#include "connection/client/wire_text.h"

namespace parlexo {

/// The result of a call that was abandoned or could not be run. Outside the range of the SOAP runtime, whose
/// results are below 2000.
inline constexpr int callAbandoned = 9001;

/// The state of a call. Shared with the call's thread, which may outlive the caller.
template <class Response>
struct PendingReply {
  explicit PendingReply(GatewayAccess connection) : access(std::move(connection)), client(access) {}

  GatewayAccess access;
  GatewayClient client;
  Response response{};
  int result = 0;
  bool cancelled = false;
};

/// The result of one call. The strings of the response live as long as the reply.
template <class Response>
class Reply {
 public:
  /// The runtime's result, 0 if a well-formed response was read; or callAbandoned.
  [[nodiscard]] int result() const { return result_; }
  [[nodiscard]] bool answered() const { return result_ == 0; }
  /// Whether the user cancelled the call, even if a response arrived nevertheless, or it could not be run.
  [[nodiscard]] bool cancelled() const { return cancelled_; }
  /// Whether the whole request was sent and no readable reply came: the gateway may have carried it out.
  [[nodiscard]] bool outcomeUnknown() const { return outcomeUnknown_; }
  /// The response record; has its default values unless answered().
  [[nodiscard]] const Response& operator*() const { return pending_ ? pending_->response : none_; }
  [[nodiscard]] const Response* operator->() const { return &**this; }

 private:
  friend class Gateway;

  std::shared_ptr<PendingReply<Response>> pending_;
  Response none_{};
  int result_ = callAbandoned;
  bool cancelled_ = true;
  bool outcomeUnknown_ = false;
};

/// Calls the gateway: creates a GatewayClient for each call and runs the call with a CallRunner.
class Gateway {
 public:
  /// `state` and `runner` must outlive this object. `state` is read at each call.
  Gateway(const RunState& state, CallRunner& runner, const GatewayTimeouts& timeouts = {})
      : state_(state), runner_(runner), timeouts_(timeouts) {}

  /// Calls `method` of GatewayClient with `arguments`, which are its parameters without the response. Text
  /// may be passed as QString, a file as FileUpload. Blocks until the call has ended or was abandoned. The
  /// arguments are copied, because the call may run on another thread.
  template <auto method, class... Arguments>
  [[nodiscard]] Reply<ResponseFor<method>> call(const Arguments&... arguments) const {
    auto pending = std::make_shared<PendingReply<ResponseFor<method>>>(gatewayAccess(state_, timeouts_));
    auto task = [pending, owned = std::tuple(toCallArgument(arguments)...)](const CancelFlag& cancel) {
      GatewayClient& client = pending->client;
      client.watch(cancel);
      std::apply(
          [&](const auto&... each) {
            (attachTransfer(client, each), ...);
            pending->result = (client.*method)(each..., pending->response);
          },
          owned);
      pending->cancelled = cancel.isRaised();
    };
    const bool ended = runner_.run(std::move(task));
    Reply<ResponseFor<method>> reply;
    reply.outcomeUnknown_ = pending->client.outcomeUnknown();
    if (!ended) return reply;
    reply.result_ = pending->result;
    reply.cancelled_ = pending->cancelled;
    reply.pending_ = std::move(pending);
    return reply;
  }

 private:
  const RunState& state_;
  CallRunner& runner_;
  GatewayTimeouts timeouts_;
};

}  // namespace parlexo
