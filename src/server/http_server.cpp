// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/http_server.h"

#include <algorithm>
#include <utility>

#include <QTcpSocket>
#include <QTimer>

#include "server/http_request_parser.h"

namespace parlexo::server {

namespace {

constexpr int listenBacklog = 256;
constexpr qsizetype maxOpenConnections = 512;

constexpr qint64 readAheadBytes = 64 * 1024;
constexpr std::chrono::milliseconds throttleInterval{20};
constexpr int throttledReadAheadBytes = 16 * 1024;
// How long a refused client may keep sending before the connection is closed. Closing immediately would reset
// the connection, and the client might not receive the refusal.
constexpr std::chrono::milliseconds refusalGrace{1000};

/// The connection of one client: reads its requests one after another and answers each. Deletes itself when
/// the connection is closed.
class HttpConnection final : public QObject {
 public:
  HttpConnection(qintptr descriptor, const HttpHooks& hooks, std::chrono::milliseconds patience,
                 QObject* parent);

  /// Limits reading to `bytesPerSecond`, to simulate a slow connection.
  void throttle(int bytesPerSecond);

 private:
  enum class Phase { Reading, Answering, Ending };

  void read();
  [[nodiscard]] QByteArray readBytes();
  void answer();
  void send(const HttpReply& reply, bool keepAlive);
  void refuse(int status);

  const HttpHooks& hooks_;
  std::chrono::milliseconds patience_;
  QTcpSocket socket_;
  QTimer deadline_;
  QTimer throttle_;
  qint64 quota_ = 0;  ///< bytes to read per tick of throttle_; 0 for no limit
  HttpRequestParser parser_;
  Phase phase_ = Phase::Reading;
};

HttpConnection::HttpConnection(qintptr descriptor, const HttpHooks& hooks, std::chrono::milliseconds patience,
                               QObject* parent)
    : QObject(parent), hooks_(hooks), patience_(patience) {
  socket_.setReadBufferSize(readAheadBytes);
  deadline_.setSingleShot(true);
  connect(&socket_, &QTcpSocket::readyRead, this, &HttpConnection::read);
  connect(&socket_, &QTcpSocket::disconnected, this, &QObject::deleteLater);
  connect(&deadline_, &QTimer::timeout, this, [this] { socket_.abort(); });
  if (socket_.setSocketDescriptor(descriptor))
    deadline_.start(patience_);
  else
    deleteLater();
}

void HttpConnection::throttle(int bytesPerSecond) {
  quota_ = std::max<qint64>(1, bytesPerSecond * throttleInterval.count() / 1000);
  // Data buffered by the system counts as received for the client, so keep the buffers small.
  socket_.setReadBufferSize(throttledReadAheadBytes);
  socket_.setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, throttledReadAheadBytes);
  socket_.disconnect(this);
  connect(&socket_, &QTcpSocket::disconnected, this, &QObject::deleteLater);
  connect(&throttle_, &QTimer::timeout, this, &HttpConnection::read);
  throttle_.start(throttleInterval);
}

QByteArray HttpConnection::readBytes() {
  if (quota_ == 0) return socket_.readAll();
  QByteArray bytes = socket_.read(quota_);
  if (!bytes.isEmpty()) deadline_.start(patience_);
  return bytes;
}

void HttpConnection::read() {
  if (phase_ == Phase::Answering) return;
  if (phase_ == Phase::Ending) {
    socket_.readAll();
    return;
  }
  // Parse data from earlier reads first, or pipelined requests would accumulate here.
  auto state = parser_.feed({});
  if (state == HttpRequestParser::State::NeedsMore) state = parser_.feed(readBytes());
  switch (state) {
    case HttpRequestParser::State::NeedsMore:
      if (parser_.consumeExpectContinue()) socket_.write("HTTP/1.1 100 Continue\r\n\r\n");
      return;
    case HttpRequestParser::State::Complete:
      return answer();
    case HttpRequestParser::State::Refused:
      return refuse(parser_.refusalStatus());
  }
}

void HttpConnection::answer() {
  phase_ = Phase::Answering;
  deadline_.stop();
  HttpRequest request = parser_.releaseRequest();
  request.serverAddress = socket_.localAddress();
  request.serverPort = socket_.localPort();
  const HttpReply reply = hooks_.answer(request);
  if (reply.delay.count() == 0) return send(reply, request.keepAlive);
  QTimer::singleShot(reply.delay, this,
                     [this, reply, keepAlive = request.keepAlive] { send(reply, keepAlive); });
}

void HttpConnection::send(const HttpReply& reply, bool keepAlive) {
  if (reply.ending == HttpReply::Ending::Nothing) return socket_.abort();
  deadline_.start(patience_);
  socket_.write(wireForm(reply, keepAlive));
  socket_.flush();
  if (!keepAlive || reply.ending == HttpReply::Ending::Half) {
    phase_ = Phase::Ending;
    return socket_.disconnectFromHost();
  }
  phase_ = Phase::Reading;
  // Queued, because pipelined requests would otherwise recurse.
  QMetaObject::invokeMethod(this, &HttpConnection::read, Qt::QueuedConnection);
}

void HttpConnection::refuse(int status) {
  phase_ = Phase::Ending;
  socket_.write(wireForm({.status = status, .contentType = "text/plain", .body = "refused\r\n"}, false));
  deadline_.start(refusalGrace);
}

}  // namespace

HttpServer::HttpServer(HttpHooks hooks, std::chrono::milliseconds patience, int uploadRate)
    : hooks_(std::move(hooks)), patience_(patience), uploadRate_(uploadRate) {
  setListenBacklogSize(listenBacklog);
}

void HttpServer::incomingConnection(qintptr descriptor) {
  const bool isFull = findChildren<QObject*>(Qt::FindDirectChildrenOnly).size() > maxOpenConnections;
  if (isFull || hooks_.refusesConnection()) {
    QTcpSocket socket;
    socket.setSocketDescriptor(descriptor);
    socket.abort();
    return;
  }
  // The connection deletes itself when it is closed, or is deleted with the server, its parent.
  auto* connection =
      new HttpConnection(descriptor, hooks_, patience_, this);  // NOLINT(cppcoreguidelines-owning-memory)
  if (uploadRate_ > 0) connection->throttle(uploadRate_);
}

}  // namespace parlexo::server
