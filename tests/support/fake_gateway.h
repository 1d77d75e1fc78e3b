// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

#include <stdsoap2.h>

namespace parlexo::testing {

/// A server on a loopback port that takes one connection after the other, reads one whole request from each
/// and answers it with fixed bytes, whatever they are, before it closes. With `Silent` it reads and then
/// keeps the connection open without a word; with `Endless` it sends blanks behind the answer for as long as
/// they are taken, with `Drops` it sends the answer a byte every 20 ms.
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
  /// From the next connection on the answer is this one.
  void setAnswer(std::string answer);
  /// Requests read so far.
  [[nodiscard]] int requestCount() const { return requestCount_; }
  /// Bytes of answers that the system has taken so far.
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

/// An envelope with the usual namespaces around what stands in its body.
[[nodiscard]] std::string envelope(const std::string& body, const std::string& header = {});

/// What our own runtime writes before and behind the content of a body.
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
[[nodiscard]] std::string bodyOf(const std::string& message);

/// A loopback port on which nothing listens.
[[nodiscard]] int closedPort();

}  // namespace parlexo::testing
