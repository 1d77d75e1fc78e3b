#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QString>

namespace parlexo::simulator {

/// What the locator document tells clients.
struct Location {
  QHostAddress address;
  quint16 port = 0;
  int maxFileSize = 0;        ///< bytes
  int maxMobileFileSize = 0;  ///< bytes
  QString clientVersion;
};

/// The path that the document is served under.
inline constexpr char locatorPath[] = "/WSDLServerLocator.xml";

/// The host as it stands in an address: an IPv6 one in brackets.
[[nodiscard]] QString hostText(const QHostAddress& address);

/// The document: clients read it line by line, so its form is fixed to the blank.
[[nodiscard]] QByteArray locatorDocument(const Location& location);

/// A document that no client may accept: its server line lacks the port.
[[nodiscard]] QByteArray malformedLocatorDocument(const Location& location);

}  // namespace parlexo::simulator
