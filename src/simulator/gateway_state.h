// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QString>

#include "simulator/account_book.h"
#include "simulator/clock.h"
#include "simulator/outbox.h"
#include "simulator/session_table.h"
#include "simulator/simulator_options.h"

namespace parlexo::simulator {

/// All that the gateway remembers. Not safe between threads: who owns it locks.
struct GatewayState {
  explicit GatewayState(const Options& given);

  [[nodiscard]] QDateTime now() const { return clock->now(); }

  Options options;
  std::shared_ptr<const Clock> clock;
  AccountBook accounts;
  SessionTable sessions;
  Outbox outbox;
  QString news;
};

}  // namespace parlexo::simulator
