// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/gateway_state.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

const QString defaultNews =
    u"Welcome to the Parlexo gateway simulator.\r\n\r\n"
    "Messages go nowhere, cost nothing real, and are printed in the simulator's log. "
    "Numbers that end in 99 fail."_s;

std::shared_ptr<const Clock> clockOf(const Options& options) {
  return options.clock ? options.clock : std::make_shared<SystemClock>();
}

}  // namespace

GatewayState::GatewayState(const Options& given)
    : options(given),
      clock(clockOf(given)),
      accounts(given.accounts),
      sessions(given.sessionLifetime),
      outbox(given.deliveryStep, clock->now()),
      news(given.news.isEmpty() ? defaultNews : given.news) {}

}  // namespace parlexo::simulator
