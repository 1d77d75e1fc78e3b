#include "gateway/core/gateway_client.h"

#include <string>

#include <gtest/gtest.h>
#include <stdsoap2.h>

#include "base/run_state.h"
#include "tests/gateway/fake_gateway.h"
#include "tests/gateway/gateway_access_for.h"

namespace parlexo {
namespace {

using testing::accessTo;
using testing::envelope;
using testing::FakeGateway;
using testing::httpReply;

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

}  // namespace
}  // namespace parlexo
