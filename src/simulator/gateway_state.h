// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QDateTime>
#include <QString>

#include "simulator/accepted_message.h"
#include "simulator/account_book.h"
#include "simulator/fault.h"
#include "simulator/outbox.h"
#include "simulator/session_table.h"
#include "simulator/simulator_options.h"

namespace parlexo::simulator {

/// The whole state of the simulated gateway. Not thread-safe.
struct GatewayState {
  explicit GatewayState(const Options& given)
      : options(given),
        accounts(given.accounts),
        sessions(given.sessionLifetime),
        outbox(given.deliveryStep, given.now()),
        news(given.news.isEmpty() ? defaultNews() : given.news) {}

  /// The current time in UTC.
  [[nodiscard]] QDateTime now() const { return options.now(); }

  [[nodiscard]] static QString defaultNews() {
    return QStringLiteral(
        "Welcome to the Parlexo gateway simulator.\r\n\r\n"
        "Messages go nowhere, cost nothing real, and are printed in the simulator's log. "
        "Numbers that end in 99 fail.");
  }

  const Options options;
  AccountBook accounts;
  SessionTable sessions;
  Outbox outbox;
  QString news;
  FaultPlan faults;
  std::vector<RecordedCall> calls;
};

}  // namespace parlexo::simulator
