// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QHostAddress>

namespace parlexo::server {

/// A request as it was read from a connection.
struct HttpRequest {
  QByteArray method;
  QByteArray target;  ///< as sent: a path, or a whole address when it came as to a proxy
  std::vector<std::pair<QByteArray, QByteArray>> headers;  ///< names in lower case
  QByteArray body;
  bool keepAlive = false;      ///< the client wants to ask again on this connection
  QHostAddress serverAddress;  ///< the own end of the connection
  quint16 serverPort = 0;

  /// The value of the first header `name` (lower case); empty when there is none.
  [[nodiscard]] QByteArray header(const QByteArray& name) const;
  /// The target without host and query.
  [[nodiscard]] QByteArray path() const;
};

/// What goes back, and how well-behaved.
struct HttpReply {
  enum class Ending { Whole, Half, Nothing };

  int status = 200;
  QByteArray contentType = "text/xml; charset=utf-8";
  QByteArray body;
  Ending ending = Ending::Whole;
  std::chrono::milliseconds delay{0};
};

/// `reply` in the bytes of the wire, without what its ending leaves out.
[[nodiscard]] QByteArray wireForm(const HttpReply& reply, bool keepAlive);

}  // namespace parlexo::server
