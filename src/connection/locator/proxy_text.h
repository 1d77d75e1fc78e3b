// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace parlexo {

/// The address of a proxy.
struct ProxyAddress {
  QString host;  ///< empty for no proxy
  int port = 0;

  [[nodiscard]] bool isEmpty() const { return host.isEmpty(); }
};

/// Parses a proxy in the format of system settings and configuration scripts, "HOST:PORT" or
/// "http=HOST:PORT;https=...". The host is the text after the first equals sign, if any, up to the next colon
/// or the end. The port is the number at the first digit after that, 0 if there is none.
[[nodiscard]] ProxyAddress parseProxyText(const QString& text);

/// Finds the HTTP proxy for addresses of `scheme` ("http") in a list of the system settings: "HOST:PORT" for
/// all schemes or "http=HOST:PORT;ftp=HOST:PORT;socks=HOST:PORT", separated by semicolons or blanks,
/// optionally with "http://" before the host. An entry for the scheme has priority over one for all schemes.
/// The default port is
/// 80. Empty if there is no entry for the scheme or it is not an HTTP proxy.
[[nodiscard]] ProxyAddress httpProxyIn(const QString& list, const QString& scheme);

/// Returns the header line "Proxy-Authorization: Basic ...\r\n", with user and password in the code page.
[[nodiscard]] QByteArray makeProxyAuthorisation(const QString& user, const QString& password);

/// Parses the decimal number at the start of `text` as atoi() does: leading blanks and a sign are accepted,
/// text after the digits is ignored, and text without a number gives 0. Values out of range are clamped to
/// int.
[[nodiscard]] int leadingNumber(const QByteArray& text);

}  // namespace parlexo
