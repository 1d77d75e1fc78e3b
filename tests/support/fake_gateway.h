// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

#include <stdsoap2.h>

namespace parlexo::test {

/// A server on a loopback port that accepts one connection at a time, reads one request and sends fixed bytes
/// before it closes the connection. With `Silent` it sends nothing and keeps the connection open, with
/// `Endless` it appends blanks until the client closes, with `Drops` it sends a byte every 20 ms.
class FakeGateway {
 public:
  enum class Manner { Answers, Silent, Endless, Drops };

  explicit FakeGateway(std::string answer, Manner manner = Manner::Answers);
  ~FakeGateway();
  FakeGateway(const FakeGateway&) = delete;
  FakeGateway& operator=(const FakeGateway&) = delete;

  [[nodiscard]] int port() const { return port_; }
  [[nodiscard]] std::string base() const { return "http://127.0.0.1:" + std::to_string(port_); }
  [[nodiscard]] std::string endpoint() const { return base() + "/ccx/onlineCommunication"; }
  /// Sets the reply to all further connections.
  void setAnswer(std::string answer);
  /// Requests read so far.
  [[nodiscard]] int requestCount() const { return requestCount_; }
  /// Bytes sent so far.
  [[nodiscard]] std::size_t bytesSent() const { return bytesSent_; }
  /// Ends the server and returns the bytes of the last request.
  [[nodiscard]] std::string lastRequest();

 private:
  void serve();
  void answer(SOAP_SOCKET connection);
  [[nodiscard]] bool sendAll(SOAP_SOCKET connection, std::string_view bytes);
  void sendInDrops(SOAP_SOCKET connection, std::string_view bytes);
  void stop();

  std::mutex mutex_;
  std::string answer_;  ///< guarded by the mutex
  Manner manner_;
  SOAP_SOCKET listener_ = SOAP_INVALID_SOCKET;
  int port_ = 0;
  std::atomic<bool> isStopping_ = false;
  std::atomic<int> requestCount_ = 0;
  std::atomic<std::size_t> bytesSent_ = 0;
  std::string request_;
  std::thread thread_;
};

/// `body` as the HTTP response that carries an envelope.
[[nodiscard]] std::string httpReply(const std::string& body, const std::string& status = "200 OK");

/// An envelope with the usual namespaces around `body`.
[[nodiscard]] std::string envelope(const std::string& body, const std::string& header = {});

/// The start and the end of the envelopes that our own runtime writes.
inline const std::string envelopeStart =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\""
    " xmlns:SOAP-ENC=\"http://schemas.xmlsoap.org/soap/encoding/\""
    " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
    " xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\""
    " xmlns:ns3=\"http://www.parlexo.example/onlineCommunication/binding\">"
    "<SOAP-ENV:Body SOAP-ENV:encodingStyle=\"http://schemas.xmlsoap.org/soap/encoding/\">";
inline const std::string envelopeEnd = "</SOAP-ENV:Body></SOAP-ENV:Envelope>\r\n";

/// The body of an HTTP message.
[[nodiscard]] std::string httpBody(const std::string& message);

/// A loopback port without a listener.
[[nodiscard]] int closedPort();

}  // namespace parlexo::test
