#pragma once

#include <memory>
#include <string>
#include <utility>

#include "base/call_runner.h"
#include "base/run_state.h"
#include "connection/client/gateway_access.h"
#include "connection/client/gateway_client.h"
#include "connection/client/wire_text.h"

namespace parlexo {

/// Runtime result of an exchange that was cancelled and did not come back in time. Outside the numbers of
/// the SOAP runtime, which lie below 2000.
inline constexpr int exchangeLeftBehind = 9001;

/// What became of one exchange. The strings of the response live as long as the reply.
template <class Response>
class Reply {
 public:
  /// The runtime's result: 0 when a well-formed answer was read.
  [[nodiscard]] int result() const { return result_; }
  [[nodiscard]] bool answered() const { return result_ == 0; }
  /// The user cancelled the call, perhaps too late to keep an answer away; or the program could not run it.
  [[nodiscard]] bool cancelled() const { return cancelled_; }
  /// The whole request went out and nothing readable came back: the gateway may have carried it out.
  [[nodiscard]] bool leftInTheDark() const { return leftInTheDark_; }
  /// The response record; all zero when there was no answer.
  [[nodiscard]] const Response& operator*() const { return exchange_ ? exchange_->response : none_; }
  [[nodiscard]] const Response* operator->() const { return &**this; }

 private:
  friend class Gateway;
  struct Exchange {
    explicit Exchange(GatewayAccess given) : access(std::move(given)), client(access) {}
    GatewayAccess access;
    GatewayClient client;
    Response response{};
    int result = 0;
    bool cancelled = false;
  };

  std::shared_ptr<Exchange> exchange_;
  Response none_{};
  int result_ = exchangeLeftBehind;
  bool cancelled_ = true;
  bool leftInTheDark_ = false;
};

/// Where flows ask the gateway: builds a fresh GatewayClient for every call and lets the call runner run it.
class Gateway {
 public:
  /// `state` and `runner` must outlive this object; `state` is read anew at every call.
  Gateway(const RunState& state, CallRunner& runner, const GatewayTimeouts& timeouts = {})
      : state_(state), runner_(runner), timeouts_(timeouts) {}

  /// Runs `operation(client, response)`, which calls one method of the client and returns its result. The
  /// operation may run on another thread: it must own what it captures.
  template <class Response, class Operation>
  [[nodiscard]] Reply<Response> call(Operation operation) const {
    auto exchange = std::make_shared<typename Reply<Response>::Exchange>(gatewayAccess(state_, timeouts_));
    Reply<Response> reply;
    const bool ended = runner_.run([exchange, operation = std::move(operation)](const CancelFlag& raised) {
      exchange->client.watch(raised);
      exchange->result = operation(exchange->client, exchange->response);
      if (exchange->result != 0) exchange->response = Response{};
      exchange->cancelled = raised.isRaised();
    });
    reply.leftInTheDark_ = exchange->client.isOutcomeOpen();
    if (!ended) return reply;
    reply.result_ = exchange->result;
    reply.cancelled_ = exchange->cancelled;
    reply.exchange_ = std::move(exchange);
    return reply;
  }

 private:
  const RunState& state_;
  CallRunner& runner_;
  GatewayTimeouts timeouts_;
};

}  // namespace parlexo
