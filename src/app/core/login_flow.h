// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/notifier.h"
#include "base/run_state.h"
#include "base/settings.h"
#include "connection/client/gateway.h"

namespace parlexo {

enum class LoginOutcome {
  Accepted,  ///< the login dialog closes with OK
  Refused,   ///< the user has been told why; the dialog stays open for another try
};

/// Opens a session with the gateway: the rules behind the login dialog. All arguments of the constructor
/// must outlive the flow.
class LoginFlow {
 public:
  LoginFlow(RunState& state, Settings& settings, const Gateway& gateway, Notifier& notifier)
      : state_(state), settings_(settings), gateway_(gateway), notifier_(notifier) {}

  /// Tries one user name and password, as typed; empty ones too, because the gateway is the judge. An
  /// accepted login replaces the session token and the user name and is remembered for the next start. A
  /// gateway that accepts without a token is believed, but nothing is stored then.
  [[nodiscard]] LoginOutcome attempt(const QString& user, const QString& password);

 private:
  void showRefusal(int errorCode);
  void keepSession(const QString& session, const QString& user);

  RunState& state_;
  Settings& settings_;
  const Gateway& gateway_;
  Notifier& notifier_;
};

}  // namespace parlexo
