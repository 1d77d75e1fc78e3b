// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_texts.h"
#include "base/notifier.h"

namespace parlexo {

/// Logs the user in again after the gateway has reported an expired session. The failed call is not repeated;
/// the user has to start it again.
class SessionRenewal {
 public:
  virtual ~SessionRenewal() = default;

  /// Shows the login dialog and blocks until it has closed. A successful login replaces the session token;
  /// the old one stays if the user cancels.
  virtual void logInAgain() = 0;

 protected:
  SessionRenewal() = default;
  SessionRenewal(const SessionRenewal&) = default;
  SessionRenewal& operator=(const SessionRenewal&) = default;
};

/// Reports the expired session and shows the login dialog.
inline void renewSession(Notifier& notifier, SessionRenewal& renewal) {
  notifier.error(text(TextId::SessionExpired));
  renewal.logInAgain();
}

}  // namespace parlexo
