// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/http_server.h"

#include <utility>

#include "server/http_connection.h"

namespace parlexo::server {

namespace {

constexpr int waitingConnections = 256;
constexpr qsizetype openConnections = 512;

}  // namespace

HttpServer::HttpServer(HttpHooks hooks, std::chrono::milliseconds patience, int uploadRate)
    : hooks_(std::move(hooks)), patience_(patience), uploadRate_(uploadRate) {
  setListenBacklogSize(waitingConnections);
}

void HttpServer::incomingConnection(qintptr descriptor) {
  const bool crowded = findChildren<QObject*>(Qt::FindDirectChildrenOnly).size() > openConnections;
  if (crowded || hooks_.refusesConnection()) {
    QTcpSocket socket;
    socket.setSocketDescriptor(descriptor);
    socket.abort();
    return;
  }
  // The connection is its own owner from here on: it deletes itself when the peer is gone, or goes with the
  // server.
  auto* connection =
      new HttpConnection(descriptor, hooks_, patience_, this);  // NOLINT(cppcoreguidelines-owning-memory)
  if (uploadRate_ > 0) connection->slowDown(uploadRate_);
}

}  // namespace parlexo::server
