#include "gateway/core/gateway_client.h"

#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <stdsoap2.h>

#include "base/run_state.h"
#include "gateway/core/gateway.h"
#include "tests/gateway/fake_gateway.h"
#include "tests/gateway/gateway_access_for.h"

namespace parlexo {
namespace {

using namespace std::chrono_literals;
using testing::accessTo;
using testing::envelope;
using testing::FakeGateway;
using testing::httpReply;

using Clock = std::chrono::steady_clock;

const std::string versionReply =
    httpReply(envelope("<m:getVersionResponse><nVersion>103</nVersion></m:getVersionResponse>"));

/// The result of a version query, with a record that holds something from before.
int queryVersion(GatewayClient& client, std::int32_t& version) {
  protocol::getVersionResponse response{.nVersion = 99};
  const int result = client.getVersion(response);
  version = response.nVersion;
  return result;
}

TEST(GatewayClient, withoutContextSendsNothingAndReturns16) {
  FakeGateway gateway(versionReply);
  const GatewayAccess access = accessTo(gateway.endpoint());
  {
    GatewayClient client(access);
    protocol::freeContext(client.soap);
    client.soap = nullptr;
    std::int32_t version = 0;
    EXPECT_EQ(queryVersion(client, version), 16);
    EXPECT_EQ(version, 0);
  }
  EXPECT_EQ(gateway.requestCount(), 0);
}

TEST(GatewayClient, installsOnlyTheProxyFieldsThatAreWhole) {
  struct Case {
    const char* user;
    const char* password;
    const char* host;
    const char* installedUser;
    const char* installedHost;
  };
  for (const Case& each : {Case{"u", "p", "h", "u", "h"},
                           {"u", "p", "", "u", nullptr},
                           {"", "p", "h", nullptr, "h"},
                           {"u", "", "h", nullptr, "h"},
                           {"", "", "h", nullptr, "h"},
                           {"", "", "", nullptr, nullptr}}) {
    GatewayAccess access = accessTo("http://gateway.invalid:1/x");
    access.proxyUser = each.user;
    access.proxyPassword = each.password;
    access.proxyHost = each.host;
    access.proxyPort = 3128;
    const GatewayClient client(access);
    EXPECT_STREQ(client.soap->proxy_userid, each.installedUser);
    EXPECT_STREQ(client.soap->proxy_passwd, each.installedUser ? each.password : nullptr);
    EXPECT_STREQ(client.soap->proxy_host, each.installedHost);
    EXPECT_EQ(client.soap->proxy_port == 3128, each.installedHost != nullptr);
  }
}

TEST(GatewayClient, goesThroughTheProxyWithItsCredentials) {
  FakeGateway proxy(versionReply);
  GatewayAccess access = accessTo("http://gateway.invalid:8080/ccx/onlineCommunication");
  access.proxyHost = "127.0.0.1";
  access.proxyPort = proxy.port();
  access.proxyUser = "user";
  access.proxyPassword = "pass";
  GatewayClient client(access);
  std::int32_t version = 0;
  EXPECT_EQ(queryVersion(client, version), 0);
  EXPECT_EQ(version, 103);
  const std::string request = proxy.lastRequest();
  EXPECT_EQ(request.find("POST http://gateway.invalid:8080/ccx/onlineCommunication HTTP/1.1\r\n"), 0u)
      << request;
  EXPECT_NE(request.find("\r\nProxy-Authorization: Basic dXNlcjpwYXNz\r\n"), std::string::npos) << request;
}

TEST(GatewayClient, unreachableGatewaysAreTransportErrors) {
  for (const std::string& endpoint :
       {"http://127.0.0.1:" + std::to_string(testing::closedPort()) + "/x",
        std::string("http://gateway.invalid:1/x"), std::string("http://127.0.0.1:0/x"),
        std::string("no address"), std::string()}) {
    const GatewayAccess access = accessTo(endpoint);
    GatewayClient client(access);
    std::int32_t version = 0;
    EXPECT_NE(queryVersion(client, version), 0) << endpoint;
    EXPECT_EQ(version, 0);
  }
}

TEST(GatewayClient, silentServerEndsTheCallAfterTheTimeOut) {
  FakeGateway gateway("", FakeGateway::Manner::Silent);
  GatewayAccess access = accessTo(gateway.endpoint());
  access.timeouts.silence = 1;
  GatewayClient client(access);
  std::int32_t version = 0;
  const auto start = Clock::now();
  EXPECT_NE(queryVersion(client, version), 0);
  EXPECT_GE(Clock::now() - start, 900ms);
  EXPECT_LT(Clock::now() - start, 3s);
}

TEST(GatewayClient, cancellingEndsAWaitForASilentServerAtOnce) {
  FakeGateway gateway("", FakeGateway::Manner::Silent);
  const GatewayAccess access = accessTo(gateway.endpoint());
  GatewayClient client(access);
  const CancelFlag cancel;
  client.watch(cancel);
  Clock::time_point raised;
  std::thread canceller([&] {
    while (gateway.requestCount() == 0) std::this_thread::sleep_for(1ms);
    raised = Clock::now();
    cancel.raise();
  });
  std::int32_t version = 0;
  EXPECT_NE(queryVersion(client, version), 0);
  canceller.join();
  EXPECT_LT(Clock::now() - raised, 500ms);
}

TEST(GatewayClient, cancelledBeforeItBeginsSendsNothing) {
  FakeGateway gateway(versionReply);
  const GatewayAccess access = accessTo(gateway.endpoint());
  GatewayClient client(access);
  const CancelFlag cancel;
  cancel.raise();
  client.watch(cancel);
  std::int32_t version = 0;
  EXPECT_NE(queryVersion(client, version), 0);
  EXPECT_EQ(gateway.requestCount(), 0);
}

TEST(Gateway, asksWithTheStateOfTheMomentAndKeepsTheAnswer) {
  FakeGateway server(httpReply(
      envelope("<m:getNewsResponse><sNews>\xC3\xA9</sNews><nErrorCode>0</nErrorCode></m:getNewsResponse>")));
  RunState state;
  DirectCallRunner runner;
  const Gateway gateway(state, runner, {.connect = 5, .silence = 5});
  const auto askForNews = [&] {
    return gateway.call<protocol::getNewsResponse>(
        [](GatewayClient& client, protocol::getNewsResponse& response) { return client.getNews(response); });
  };
  EXPECT_FALSE(askForNews().answered());
  EXPECT_EQ(askForNews()->sNews, nullptr);
  state.gateway.endpoint = QString::fromStdString(server.endpoint());
  const auto reply = askForNews();
  ASSERT_TRUE(reply.answered());
  EXPECT_EQ(fromWire(reply->sNews), QString(QChar(0xE9)));
}

}  // namespace
}  // namespace parlexo
