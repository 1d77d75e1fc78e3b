// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// The proxy used for all calls except sessionEnd; empty if there is none. User and password are empty for a
/// proxy without login.
struct ProxySettings {
  QString password;
  QString user;
  QString host;
  int port = 0;
};

/// What the locator document says about the gateway.
struct GatewayLocation {
  QString latestClientVersion;
  QString host;
  int port = 0;
  int maxFileSize = 0;        ///< size limit of a fax file in bytes
  int maxFileSizeMobile = 0;  ///< size limit of an MMS or WAP file in bytes
  QString endpoint;           ///< "http://HOST:PORT/ccx/onlineCommunication"
};

/// The state that the pages share while the program runs. A single object, owned by the application and
/// passed by reference. Interface thread only.
struct RunState {
  ProxySettings proxy;
  GatewayLocation gateway;
  QString session;   ///< session token; empty until a login succeeds
  QString userName;  ///< user name of the last successful login
  QString senderId;  ///< shared by all send pages; empty for none
  /// Set when the balance is zero or less and never reset; the send pages then refuse to send.
  bool balanceIsZero = false;
};

}  // namespace parlexo
