// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/simulator/raw_client.h"

#include <QElapsedTimer>
#include <QHostAddress>

namespace parlexo::test {

namespace {

constexpr int patience = 5000;

QByteArray readToEnd(QTcpSocket& socket) {
  QElapsedTimer time;
  time.start();
  QByteArray reply;
  while (time.elapsed() < patience) {
    reply += socket.readAll();
    if (socket.state() != QAbstractSocket::ConnectedState) break;
    socket.waitForReadyRead(100);
  }
  return reply + socket.readAll();
}

}  // namespace

QByteArray RawClient::exchange(const QByteArray& bytes) const {
  QTcpSocket socket;
  socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port_);
  if (!socket.waitForConnected(patience)) return {};
  socket.write(bytes);
  while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(patience)) {
  }
  return readToEnd(socket);
}

QByteArray RawClient::call(const QByteArray& operation, const QByteArray& fields) const {
  return exchange(postRequest(operation, fields));
}

QByteArray RawClient::logIn() const {
  return elementText(call("sessionStart", text("sUser", "demo") + text("sPassword", "demo1234")), "sSession");
}

QByteArray postRequest(const QByteArray& operation, const QByteArray& fields) {
  const QByteArray body =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\" "
      "xmlns:SOAP-ENC=\"http://schemas.xmlsoap.org/soap/encoding/\" "
      "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
      "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" "
      "xmlns:ns3=\"http://www.parlexo.example/onlineCommunication/binding\">"
      "<SOAP-ENV:Body SOAP-ENV:encodingStyle=\"http://schemas.xmlsoap.org/soap/encoding/\"><ns3:" +
      operation + ">" + fields + "</ns3:" + operation + "></SOAP-ENV:Body></SOAP-ENV:Envelope>";
  return "POST /ccx/onlineCommunication HTTP/1.1\r\nHost: localhost\r\nConnection: close\r\n"
         "Content-Type: text/xml; charset=utf-8\r\nContent-Length: " +
         QByteArray::number(body.size()) +
         "\r\nSOAPAction: \"capeconnect:onlineCommunication:onlineCommunicationPortType#" + operation +
         "\"\r\n\r\n" + body;
}

QByteArray text(const QByteArray& name, const QByteArray& value) {
  return "<" + name + " xsi:type=\"xsd:string\">" + value + "</" + name + ">";
}

QByteArray flag(const QByteArray& name, bool value) {
  return "<" + name + " xsi:type=\"xsd:boolean\">" + (value ? "true" : "false") + "</" + name + ">";
}

QByteArray elementText(const QByteArray& reply, const QByteArray& name) {
  const qsizetype begin = reply.indexOf("<" + name);
  const qsizetype content = begin < 0 ? -1 : reply.indexOf('>', begin);
  const qsizetype end = content < 0 ? -1 : reply.indexOf("</" + name + ">", content);
  return end < 0 ? QByteArray("(none)") : reply.mid(content + 1, end - content - 1);
}

int httpStatus(const QByteArray& reply) {
  return reply.startsWith("HTTP/1.1 ") ? reply.mid(9, 3).toInt() : 0;
}

}  // namespace parlexo::test
