#pragma once

#include <memory>
#include <utility>

#include <QObject>
#include <QPointer>

#include "base/background_runner.h"
#include "connection/client/gateway.h"

namespace parlexo {

/// The operations that may run in the background: only those that change nothing at the gateway. Any other
/// response type does not compile.
template <class Response>
struct BackgroundQuery;
template <>
struct BackgroundQuery<protocol::getNewsResponse> {
  static constexpr bool needsSession = false;
};
template <>
struct BackgroundQuery<protocol::getAccountBalanceResponse> {
  static constexpr bool needsSession = true;
};
template <>
struct BackgroundQuery<protocol::getAccountHistoryResponse> {
  static constexpr bool needsSession = true;
};
template <>
struct BackgroundQuery<protocol::getStatusResponse> {
  static constexpr bool needsSession = true;
};

/// Queries the gateway without making the user wait.
class BackgroundGateway {
 public:
  /// `state` and `runner` must outlive this object and every query that was started.
  BackgroundGateway(const RunState& state, BackgroundRunner& runner,
                    const GatewayTimeouts& timeouts = {.whole = timeouts::background})
      : state_(state), runner_(runner), timeouts_(timeouts) {}

  /// Queues `operation(client, response)`, which calls one method of the client and returns its result. It
  /// may run several times, on another thread, and must own what it captures. `receive(reply)` is called on
  /// the interface thread, with failures too: nothing is shown for them here, and a code 7 must not open the
  /// login. It is not called after `context` was destroyed, nor for an answer that belongs to a session when
  /// user or session have changed since.
  template <class Response, class Operation, class Receive>
  void call(QObject& context, Operation operation, Receive receive) const {
    auto reply = std::make_shared<Reply<Response>>();
    // Each run works on a copy of the state, because the interface thread may change the original.
    auto exchange = [reply, operation, state = state_, timeouts = timeouts_](const CancelFlag& cancel) {
      OnThisThread runner(cancel);
      *reply = Gateway(state, runner, timeouts).template call<Response>(operation);
    };
    runner_.add({std::move(exchange), [reply, receive] { receive(std::as_const(*reply)); },
                 stillApplies(context, BackgroundQuery<Response>::needsSession)});
  }

 private:
  class OnThisThread final : public CallRunner {
   public:
    explicit OnThisThread(const CancelFlag& cancel) : cancel_(cancel) {}

    [[nodiscard]] bool run(Exchange exchange) override {
      exchange(cancel_);
      return true;
    }

   private:
    const CancelFlag& cancel_;
  };

  [[nodiscard]] std::function<bool()> stillApplies(QObject& context, bool needsSession) const {
    return [&state = state_, context = QPointer<QObject>(&context), needsSession, session = state_.session,
            user = state_.userName] {
      return context && (!needsSession || (state.session == session && state.userName == user));
    };
  }

  const RunState& state_;
  BackgroundRunner& runner_;
  GatewayTimeouts timeouts_;
};

}  // namespace parlexo
