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

/// Runtime result of a call that was cancelled and did not return in time. Outside the range of the SOAP
/// runtime, whose results are below 2000.
inline constexpr int callLeftBehind = 9001;

template <class Response>
class PendingReply;

/// The result of one call. The strings of the response live as long as the reply.
template <class Response>
class Reply {
 public:
  /// The runtime's result: 0 when a well-formed answer was read.
  [[nodiscard]] int result() const { return result_; }
  [[nodiscard]] bool answered() const { return result_ == 0; }
  /// The user cancelled the call, perhaps too late to keep an answer away; or the program could not run it.
  [[nodiscard]] bool cancelled() const { return cancelled_; }
  /// The whole request went out and nothing readable came back: the gateway may have carried it out.
  [[nodiscard]] bool outcomeUnknown() const { return outcomeUnknown_; }
  /// The response record; all zero when there was no answer.
  [[nodiscard]] const Response& operator*() const { return pending_ ? pending_->response : none_; }
  [[nodiscard]] const Response* operator->() const { return &**this; }

 private:
  friend class Gateway;

  std::shared_ptr<PendingReply<Response>> pending_;
  Response none_{};
  int result_ = callLeftBehind;
  bool cancelled_ = true;
  bool outcomeUnknown_ = false;
};

/// What a running call works on. Shared with its thread, which may outlive the caller.
template <class Response>
class PendingReply {
 public:
  explicit PendingReply(GatewayAccess given) : access(std::move(given)), client(access) {}

  GatewayAccess access;
  GatewayClient client;
  Response response{};
  int result = 0;
  bool cancelled = false;
};

/// Calls the gateway. Builds a new GatewayClient for every call and has the call runner run it.
class Gateway {
 public:
  /// `state` and `runner` must outlive this object; `state` is read at every call.
  Gateway(const RunState& state, CallRunner& runner, const GatewayTimeouts& timeouts = {})
      : state_(state), runner_(runner), timeouts_(timeouts) {}

  /// Calls `method` of GatewayClient with `arguments`, its parameters without the response. Text may be given
  /// as QString and a file as FileUpload. The arguments are copied, since the call may run on another thread.
  template <auto method, class... Arguments>
  [[nodiscard]] Reply<ResponseOf<method>> call(const Arguments&... arguments) const {
    auto pending = std::make_shared<PendingReply<ResponseOf<method>>>(gatewayAccess(state_, timeouts_));
    Reply<ResponseOf<method>> reply;
    const bool ended =
        runner_.run([pending, owned = std::tuple(toCallArgument(arguments)...)](const CancelFlag& cancel) {
          pending->client.watch(cancel);
          std::apply(
              [&pending](const auto&... each) {
                (reportProgress(pending->client, each), ...);
                pending->result = (pending->client.*method)(each..., pending->response);
              },
              owned);
          pending->cancelled = cancel.isRaised();
        });
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
