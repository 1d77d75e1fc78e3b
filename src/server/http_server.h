// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

#include <QTcpServer>

#include "server/http_message.h"

namespace parlexo::server {

/// What an HTTP server asks its owner; called on the server's thread.
struct HttpHooks {
  /// Whether the connection that was just made is closed without a word.
  std::function<bool()> refusesConnection;
  std::function<HttpReply(const HttpRequest& request)> answer;
};

/// Serves many connections on the thread it lives in.
class HttpServer final : public QTcpServer {
 public:
  /// A connection that does not bring a whole request, or does not take its reply, within `patience` is cut.
  /// With an `uploadRate` other than 0 each connection takes in so many bytes a second, and patience is
  /// reckoned from the last of them.
  HttpServer(HttpHooks hooks, std::chrono::milliseconds patience, int uploadRate = 0);

 protected:
  void incomingConnection(qintptr descriptor) override;

 private:
  HttpHooks hooks_;
  std::chrono::milliseconds patience_;
  int uploadRate_;
};

}  // namespace parlexo::server
