// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

#include "base/notifier.h"
#include "base/run_state.h"
#include "base/settings.h"
#include "connection/client/gateway.h"

namespace parlexo {

enum class LoginOutcome {
  Accepted,  ///< a session is open
  Refused,   ///< the reason was shown to the user, who may try again
};

/// Opens a session with the gateway.
class LoginFlow {
  Q_DECLARE_TR_FUNCTIONS(LoginFlow)

 public:
  /// All arguments must outlive the flow.
  LoginFlow(RunState& state, Settings& settings, const Gateway& gateway, Notifier& notifier)
      : state_(state), settings_(settings), gateway_(gateway), notifier_(notifier) {}

  /// Logs in with `user` and `password`, which are sent unchecked, even if empty. On success, stores the
  /// session token and the user name in the run's state and remembers the name for the next start. If the
  /// gateway returns success without a token, the login counts as accepted, but nothing is stored.
  [[nodiscard]] LoginOutcome attempt(const QString& user, const QString& password);

 private:
  void showRefusal(int errorCode);
  void storeSession(const QString& session, const QString& user);

  RunState& state_;
  Settings& settings_;
  const Gateway& gateway_;
  Notifier& notifier_;
};

}  // namespace parlexo
