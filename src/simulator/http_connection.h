#pragma once

#include <chrono>

#include <QObject>
#include <QTcpSocket>
#include <QTimer>

#include "simulator/http_request_parser.h"
#include "simulator/http_server.h"

namespace parlexo::simulator {

/// One client's connection: reads its requests one after the other and answers each. Deletes itself when the
/// connection has ended.
class HttpConnection final : public QObject {
 public:
  HttpConnection(qintptr descriptor, const HttpHooks& hooks, std::chrono::milliseconds patience,
                 QObject* parent);

 private:
  enum class Phase { Reading, Answering, Ending };

  void read();
  void answer();
  void send(const HttpReply& reply, bool keepAlive);
  void refuse(int status);

  const HttpHooks& hooks_;
  std::chrono::milliseconds patience_;
  QTcpSocket socket_;
  QTimer deadline_;
  HttpRequestParser parser_;
  Phase phase_ = Phase::Reading;
};

}  // namespace parlexo::simulator
