// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/http_message.h"

#include <algorithm>

namespace parlexo::server {

namespace {

QByteArray reasonFor(int status) {
  switch (status) {
    case 200:
      return "OK";
    case 400:
      return "Bad Request";
    case 404:
      return "Not Found";
    case 405:
      return "Method Not Allowed";
    case 413:
      return "Content Too Large";
    case 431:
      return "Request Header Fields Too Large";
    case 501:
      return "Not Implemented";
    default:
      return "Internal Server Error";
  }
}

}  // namespace

QByteArray HttpRequest::header(const QByteArray& name) const {
  const auto entry =
      std::find_if(headers.begin(), headers.end(), [&name](const auto& each) { return each.first == name; });
  return entry == headers.end() ? QByteArray() : entry->second;
}

QByteArray HttpRequest::path() const {
  QByteArray path = target;
  constexpr QByteArrayView scheme = "http://";
  if (path.startsWith(scheme)) {
    const qsizetype slash = path.indexOf('/', scheme.size());
    path = slash < 0 ? QByteArray("/") : path.mid(slash);
  }
  const qsizetype query = path.indexOf('?');
  return query < 0 ? path : path.left(query);
}

QByteArray wireForm(const HttpReply& reply, bool keepAlive) {
  QByteArray bytes = "HTTP/1.1 " + QByteArray::number(reply.status) + ' ' + reasonFor(reply.status) +
                     "\r\nContent-Type: " + reply.contentType +
                     "\r\nContent-Length: " + QByteArray::number(reply.body.size()) +
                     "\r\nConnection: " + (keepAlive ? "keep-alive" : "close") + "\r\n\r\n";
  switch (reply.ending) {
    case HttpReply::Ending::Whole:
      return bytes + reply.body;
    case HttpReply::Ending::Half:
      return bytes + reply.body.left(reply.body.size() / 2);
    case HttpReply::Ending::Nothing:
      return {};
  }
  return bytes;
}

}  // namespace parlexo::server
