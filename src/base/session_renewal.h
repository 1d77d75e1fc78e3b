// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo {

/// Lets the user log in again after the gateway has said that the session is over. What failed is not
/// repeated; the user starts it again.
class SessionRenewal {
 public:
  virtual ~SessionRenewal() = default;

  /// Shows the login dialog; a successful login has replaced the session token when this returns. When the
  /// user cancels, the old token stays.
  virtual void logInAgain() = 0;

 protected:
  SessionRenewal() = default;
  SessionRenewal(const SessionRenewal&) = default;
  SessionRenewal& operator=(const SessionRenewal&) = default;
};

}  // namespace parlexo
