// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/http_connection.h"

#include <algorithm>

namespace parlexo::server {

namespace {

constexpr qint64 readAheadBytes = 64 * 1024;
constexpr std::chrono::milliseconds pacePeriod{20};
constexpr int slowReadAhead = 16 * 1024;
// How long a refused client may go on sending before it is cut off: closing at once would reset the
// connection and with it the refusal that is still on its way.
constexpr std::chrono::milliseconds refusalGrace{1000};

}  // namespace

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

void HttpConnection::slowDown(int bytesPerSecond) {
  ration_ = std::max<qint64>(1, bytesPerSecond * pacePeriod.count() / 1000);
  // What the system takes in on its own would look to the client as if it had arrived.
  socket_.setReadBufferSize(slowReadAhead);
  socket_.setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, slowReadAhead);
  socket_.disconnect(this);
  connect(&socket_, &QTcpSocket::disconnected, this, &QObject::deleteLater);
  connect(&pace_, &QTimer::timeout, this, &HttpConnection::read);
  pace_.start(pacePeriod);
}

QByteArray HttpConnection::takeIn() {
  if (ration_ == 0) return socket_.readAll();
  QByteArray bytes = socket_.read(ration_);
  if (!bytes.isEmpty()) deadline_.start(patience_);
  return bytes;
}

void HttpConnection::read() {
  if (phase_ == Phase::Answering) return;
  if (phase_ == Phase::Ending) {
    socket_.readAll();
    return;
  }
  // First what an earlier read brought, so that many requests sent at once don't pile up here.
  auto state = parser_.feed({});
  if (state == HttpRequestParser::State::NeedsMore) state = parser_.feed(takeIn());
  switch (state) {
    case HttpRequestParser::State::NeedsMore:
      if (parser_.takeContinueWish()) socket_.write("HTTP/1.1 100 Continue\r\n\r\n");
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
  HttpRequest request = parser_.take();
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
  // Later, not at once: a peer with many requests in one piece would grow the stack.
  QMetaObject::invokeMethod(this, &HttpConnection::read, Qt::QueuedConnection);
}

void HttpConnection::refuse(int status) {
  phase_ = Phase::Ending;
  socket_.write(wireForm({.status = status, .contentType = "text/plain", .body = "refused\r\n"}, false));
  deadline_.start(refusalGrace);
}

}  // namespace parlexo::server
