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

/// Asks for the account's balance when the main window is about to open and warns of a low one. All
/// arguments of the constructor must outlive the check.
class BalanceCheck {
 public:
  BalanceCheck(RunState& state, const Gateway& gateway, Notifier& notifier, Progress& progress)
      : state_(state), gateway_(gateway), notifier_(notifier), progress_(progress) {}

  /// Returns the balance with two decimals, as the main window shows it, or an empty text when it could
  /// not be had. A gateway out of reach is reported; one that refuses to tell is passed over in silence. A
  /// balance of zero or less sets RunState::balanceIsZero for the rest of the run. The progress box is
  /// hidden before any message.
  [[nodiscard]] QString run();

  /// The current balance, for a user who asked for it: as run(), but none when it could not be had, and
  /// without the warnings, which belong to the start of a run. What a balance of zero forbids, the send pages
  /// say when asked to.
  [[nodiscard]] std::optional<QString> refresh();

  /// Judges a balance that the gateway has told and returns it with two decimals.
  [[nodiscard]] QString take(double balance);

 private:
  std::optional<double> query();
  void judge(double balance);
  void warn(TextId warning);

  RunState& state_;
  const Gateway& gateway_;
  Notifier& notifier_;
  Progress& progress_;
};

}  // namespace parlexo
