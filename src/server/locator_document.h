// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QString>

namespace parlexo::server {

/// What the locator document announces.
struct Location {
  QHostAddress address;
  quint16 port = 0;
  int maxFileSize = 0;        ///< bytes
  int maxMobileFileSize = 0;  ///< bytes
  QString clientVersion;
};

/// The path that the document is served under.
inline constexpr char locatorPath[] = "/WSDLServerLocator.xml";

/// The host part of a URL: an IPv6 address in brackets.
[[nodiscard]] QString hostText(const QHostAddress& address);

/// The document: clients read it line by line, so its layout is fixed down to the spaces.
[[nodiscard]] QByteArray locatorDocument(const Location& location);

}  // namespace parlexo::server
