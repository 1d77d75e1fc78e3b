// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace parlexo {

/// Where a proxy listens.
struct ProxyAddress {
  QString host;  ///< empty stands for no proxy
  int port = 0;

  [[nodiscard]] bool isEmpty() const { return host.isEmpty(); }
};

/// Reads a proxy as system settings and configuration scripts write it, "HOST:PORT" or
/// "http=HOST:PORT;https=...". The host is what stands between the first equals sign, if any, and the colon
/// that follows it (or the end); the port is the number at the first digit after that, 0 when there is none.
[[nodiscard]] ProxyAddress parseProxyText(const QString& text);

/// The HTTP proxy that a list of the system's settings names for addresses of `scheme` ("http"), as such
/// settings are written: "HOST:PORT" for every scheme or "http=HOST:PORT;ftp=HOST:PORT;socks=HOST:PORT", also
/// separated by blanks and with "http://" before the host. An entry for the scheme comes before one for all;
/// without a port it is 80. Empty when the list has none for the scheme, or only one of another protocol.
[[nodiscard]] ProxyAddress httpProxyIn(const QString& list, const QString& scheme);

/// The header line that logs in to a proxy, "Proxy-Authorization: Basic ...\r\n", of name and password in the
/// bytes of the code page.
[[nodiscard]] QByteArray makeProxyAuthorisation(const QString& user, const QString& password);

}  // namespace parlexo
