// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QHostAddress>

namespace parlexo::server {

/// A request as received.
struct HttpRequest {
  QByteArray method;
  QByteArray target;  ///< as sent: a path, or a URL in a request to a proxy
  std::vector<std::pair<QByteArray, QByteArray>> headers;  ///< names in lower case
  QByteArray body;
  bool keepAlive = false;      ///< the client may send another request on this connection
  QHostAddress serverAddress;  ///< the local address of the connection
  quint16 serverPort = 0;

  /// The value of the first header `name`, given in lower case; empty if there is none.
  [[nodiscard]] QByteArray header(const QByteArray& name) const;
  /// The target without host and query.
  [[nodiscard]] QByteArray path() const;
};

/// A reply, and faults to simulate when sending it.
struct HttpReply {
  /// How much of the reply is sent before the connection is closed; Half is all headers and half of the body.
  enum class Ending { Whole, Half, Nothing };

  int status = 200;
  QByteArray contentType = "text/xml; charset=utf-8";
  QByteArray body;
  Ending ending = Ending::Whole;
  std::chrono::milliseconds delay{0};  ///< before sending
};

/// Serialises `reply` as far as its `ending` allows.
[[nodiscard]] QByteArray wireForm(const HttpReply& reply, bool keepAlive);

}  // namespace parlexo::server
