// SPDX-License-Identifier: GPL-3.0-or-later
#include <atomic>
#include <thread>

#include <QSet>

#include "simulator/simulator.h"
#include "tests/simulator/raw_client.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

using namespace simulator;
Options impatientOptions() {
  Options options;
  options.requestTimeout = std::chrono::milliseconds(300);
  options.accounts.front().balance = 1000.0;
  return options;
}

struct GatewayConnections : testing::Test {
  GatewayConnections() : simulator_(impatientOptions()) { EXPECT_TRUE(simulator_.start()); }

  RawClient client() const { return RawClient(simulator_.port()); }
  void expectStillServes() const {
    EXPECT_EQ(elementText(client().call("getVersion", {}), "nVersion"), "103");
  }

  Simulator simulator_;
};

TEST_F(GatewayConnections, hostileInputIsRejectedAndServiceContinues) {
  const Cases<QByteArray, int> cases = {
      {"\x01\x02garbage\r\n\r\n", 400},
      {"GET / HTTP/1.1\r\nX: " + QByteArray(300 * 1024, 'x'), 431},
      {"POST /ccx/onlineCommunication HTTP/1.1\r\nContent-Length: 4000000000\r\n\r\n", 413},
      {"GET /ccx/onlineCommunication HTTP/1.0\r\n\r\n", 405},
      {"GET /../etc/passwd HTTP/1.0\r\n\r\n", 404},
      {"POST /ccx/onlineCommunication HTTP/1.0\r\n\r\n", 500},
      {"GET /WSDL", 0},
      {"", 0},
  };
  for (const auto& [request, status] : cases) {
    EXPECT_EQ(httpStatus(client().exchange(request)), status) << request.left(60).toStdString();
    expectStillServes();
  }
}

TEST_F(GatewayConnections, connectionIsReusedForManyRequests) {
  const QByteArray once = "GET /WSDLServerLocator.xml HTTP/1.1\r\n\r\n";
  const QByteArray last = "GET /WSDLServerLocator.xml HTTP/1.1\r\nConnection: close\r\n\r\n";
  const QByteArray reply = client().exchange(once.repeated(2000) + last);
  EXPECT_EQ(reply.count("HTTP/1.1 200 OK"), 2001);
}

TEST_F(GatewayConnections, concurrentClientsGetUniqueReceipts) {
  constexpr int clients = 8;
  constexpr int sends = 25;
  const QByteArray session = client().logIn();
  std::atomic<int> answered = 0;
  std::vector<std::thread> threads;
  threads.reserve(clients);
  for (int i = 0; i < clients; ++i)
    threads.emplace_back([&] {
      for (int n = 0; n < sends; ++n) {
        const QByteArray reply =
            client().call("sendSms", text("sSession", session) + text("sMessage", "Hello") +
                                         text("sListPhoneNumbers", "+61491570156,+60312345678"));
        if (elementText(reply, "nErrorCode") == "0") ++answered;
        (void)simulator_.messages();
      }
    });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(answered, clients * sends);
  QSet<QString> receipts;
  for (const AcceptedMessage& message : simulator_.messages())
    for (const QString& receipt : message.receipts) receipts.insert(receipt);
  EXPECT_EQ(receipts.size(), clients * sends * 2);
  EXPECT_EQ(simulator_.balance(u"demo"_s), 980.0);
}

}  // namespace
}  // namespace parlexo::test
