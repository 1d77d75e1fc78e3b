// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>

#include "base/message_texts.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "connection/client/gateway.h"

namespace parlexo {

/// Queries the account's balance for the main window and warns if it is low.
class BalanceCheck {
 public:
  /// All arguments must outlive this object.
  BalanceCheck(RunState& state, const Gateway& gateway, Notifier& notifier, Progress& progress)
      : state_(state), gateway_(gateway), notifier_(notifier), progress_(progress) {}

  /// Queries the balance for a main window that is about to open. Returns it with two decimals, or an empty
  /// string if the query failed. Reports an unreachable gateway; an error code of the gateway is ignored.
  /// Warns if the balance is low. A balance of zero or less sets RunState::balanceIsZero for the rest of the
  /// run. Hides the progress box before any message.
  [[nodiscard]] QString run();

  /// Like run(), but for a refresh by the user: without warnings, and nullopt if the query failed.
  [[nodiscard]] std::optional<QString> refresh();

  /// Warns if `balance` is low and returns it with two decimals. A balance of zero or less sets
  /// RunState::balanceIsZero.
  [[nodiscard]] QString report(double balance);

 private:
  std::optional<double> query();
  void warn(TextId warning);

  RunState& state_;
  const Gateway& gateway_;
  Notifier& notifier_;
  Progress& progress_;
};

}  // namespace parlexo
