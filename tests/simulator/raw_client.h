// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QTcpSocket>

namespace parlexo::test {

/// Sends hand-written requests to a gateway, independently of the client's code.
class RawClient {
 public:
  explicit RawClient(quint16 port) : port_(port) {}

  /// Sends `bytes` and returns the reply when the peer closes the connection or after 5 s.
  [[nodiscard]] QByteArray exchange(const QByteArray& bytes) const;
  /// Calls an operation; `fields` are the child elements of its element.
  [[nodiscard]] QByteArray call(const QByteArray& operation, const QByteArray& fields) const;
  /// Logs in as demo and returns the token.
  [[nodiscard]] QByteArray logIn() const;

 private:
  quint16 port_;
};

/// A whole HTTP request that calls an operation.
[[nodiscard]] QByteArray postRequest(const QByteArray& operation, const QByteArray& fields);

/// A field of type string.
[[nodiscard]] QByteArray text(const QByteArray& name, const QByteArray& value);

[[nodiscard]] QByteArray flag(const QByteArray& name, bool value);

/// The text of the first element `name` in `reply`; "(none)" when there is none.
[[nodiscard]] QByteArray elementText(const QByteArray& reply, const QByteArray& name);

/// The HTTP status of `reply`; 0 when it has none.
[[nodiscard]] int httpStatus(const QByteArray& reply);

}  // namespace parlexo::test
