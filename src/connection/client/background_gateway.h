// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

#include <QObject>
#include <QPointer>

#include "base/background_runner.h"
#include "connection/client/gateway.h"

namespace parlexo {

/// The responses of the operations that may run in the background: only those that change nothing at the
/// gateway, so that they can be cancelled and repeated.
template <class Response>
concept BackgroundResponse = std::is_same_v<Response, protocol::getNewsResponse> ||
    std::is_same_v<Response, protocol::getAccountBalanceResponse> ||
    std::is_same_v<Response, protocol::getAccountHistoryResponse> ||
    std::is_same_v<Response, protocol::getStatusResponse>;

/// Queries the gateway without making the user wait. Interface thread only.
class BackgroundGateway {
 public:
  /// `state` and `runner` must outlive this object and every query.
  BackgroundGateway(const RunState& state, BackgroundRunner& runner,
                    const GatewayTimeouts& timeouts = {.whole = timeouts::background})
      : state_(state), runner_(runner), timeouts_(timeouts) {}

  /// Queues a call of `method`; `arguments` are those of Gateway::call(). The call may run several times, on
  /// another thread. Afterwards `receive(reply)` is called on the interface thread, also on failure, for
  /// which nothing else is shown; session expiry must not open the login dialog. `receive` is not called if
  /// `context` has been destroyed, or if the operation needs a session and the user or session has changed
  /// since.
  template <auto method, class Receive, class... Arguments>
  requires BackgroundResponse<ResponseFor<method>>
  void call(QObject& context, Receive receive, const Arguments&... arguments) const {
    using Response = ResponseFor<method>;
    constexpr bool needsSession = !std::is_same_v<Response, protocol::getNewsResponse>;
    auto reply = std::make_shared<Reply<Response>>();
    // Each run uses a copy of the state, because the interface thread may change the original.
    auto task = [reply, state = state_, timeouts = timeouts_, arguments...](const CancelFlag& cancel) {
      DirectCallRunner runner(cancel);
      *reply = Gateway(state, runner, timeouts).template call<method>(arguments...);
    };
    runner_.add({.task = std::move(task),
                 .deliver = [reply, receive] { receive(std::as_const(*reply)); },
                 .isWanted = stillApplies(context, needsSession)});
  }

 private:
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
