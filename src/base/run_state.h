// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// The proxy that every exchange but sessionEnd goes through; all empty when there is none. One that wants no
/// login has neither user nor password.
struct ProxySettings {
  QString password;
  QString user;
  QString host;
  int port = 0;
};

/// What the locator document told about the gateway.
struct GatewayLocation {
  QString latestClientVersion;
  QString host;
  int port = 0;
  int maxFileSize = 0;        ///< bytes that a fax file may have
  int maxFileSizeMobile = 0;  ///< bytes that an MMS or WAP file may have
  QString endpoint;           ///< "http://HOST:PORT/ccx/onlineCommunication"
};

/// The values that one run of the program shares between its pages. One object, owned by the application
/// and passed by reference to whoever needs it; used by the interface thread alone.
struct RunState {
  ProxySettings proxy;
  GatewayLocation gateway;
  QString session;   ///< the session token; empty until a login succeeds
  QString userName;  ///< the name of the last successful login
  QString senderId;  ///< one value for all send pages; empty for none
  /// Set by a balance of zero or less and never cleared in this run; the send pages then refuse to send.
  bool balanceIsZero = false;
};

}  // namespace parlexo
