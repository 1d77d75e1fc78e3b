// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

#include <QObject>
#include <QTcpSocket>
#include <QTimer>

#include "server/http_request_parser.h"
#include "server/http_server.h"

namespace parlexo::server {

/// One client's connection: reads its requests one after the other and answers each. Deletes itself when the
/// connection has ended.
class HttpConnection final : public QObject {
 public:
  HttpConnection(qintptr descriptor, const HttpHooks& hooks, std::chrono::milliseconds patience,
                 QObject* parent);

  /// From now on takes in at most `bytesPerSecond`, as over a slow line.
  void slowDown(int bytesPerSecond);

 private:
  enum class Phase { Reading, Answering, Ending };

  void read();
  [[nodiscard]] QByteArray takeIn();
  void answer();
  void send(const HttpReply& reply, bool keepAlive);
  void refuse(int status);

  const HttpHooks& hooks_;
  std::chrono::milliseconds patience_;
  QTcpSocket socket_;
  QTimer deadline_;
  QTimer pace_;
  qint64 ration_ = 0;  ///< bytes to take in with each beat of pace_
  HttpRequestParser parser_;
  Phase phase_ = Phase::Reading;
};

}  // namespace parlexo::server
