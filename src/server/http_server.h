// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

#include <QTcpServer>

#include "server/http_message.h"

namespace parlexo::server {

/// Callbacks of an HTTP server, called on its thread.
struct HttpHooks {
  /// Whether to close a new connection without a reply.
  std::function<bool()> refusesConnection;
  std::function<HttpReply(const HttpRequest& request)> answer;
};

/// Serves concurrent connections on its own QObject thread.
class HttpServer final : public QTcpServer {
 public:
  /// A connection is closed if it does not send a complete request, or does not receive its reply, within
  /// `patience`. If `uploadRate` is not 0, each connection reads at most that many bytes per second, and
  /// `patience` limits the time since the last of them.
  HttpServer(HttpHooks hooks, std::chrono::milliseconds patience, int uploadRate = 0);

 protected:
  void incomingConnection(qintptr descriptor) override;

 private:
  HttpHooks hooks_;
  std::chrono::milliseconds patience_;
  int uploadRate_;
};

}  // namespace parlexo::server
