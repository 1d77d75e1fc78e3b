// SPDX-License-Identifier: GPL-3.0-or-later
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

  /// Queues a call of `method` of GatewayClient with `arguments`, its parameters without the response; text
  /// may be given as QString. It may run several times, on another thread. `receive(reply)` is called on the
  /// interface thread, with failures too: nothing is shown for them here, and a code 7 must not open the
  /// login. It is not called after `context` was destroyed, nor for an answer that belongs to a session when
  /// user or session have changed since.
  template <auto method, class Receive, class... Arguments>
  void call(QObject& context, Receive receive, const Arguments&... arguments) const {
    using Response = ResponseOf<method>;
    auto reply = std::make_shared<Reply<Response>>();
    // Each run works on a copy of the state, because the interface thread may change the original.
    auto task = [reply, state = state_, timeouts = timeouts_, arguments...](const CancelFlag& cancel) {
      OnThisThread runner(cancel);
      *reply = Gateway(state, runner, timeouts).template call<method>(arguments...);
    };
    runner_.add({std::move(task), [reply, receive] { receive(std::as_const(*reply)); },
                 stillApplies(context, BackgroundQuery<Response>::needsSession)});
  }

 private:
  class OnThisThread final : public CallRunner {
   public:
    explicit OnThisThread(const CancelFlag& cancel) : cancel_(cancel) {}

    [[nodiscard]] bool run(Task task) override {
      task(cancel_);
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
