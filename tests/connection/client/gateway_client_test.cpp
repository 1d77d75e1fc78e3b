// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/client/gateway_client.h"

#include <array>
#include <thread>

#include <stdsoap2.h>

#include "base/run_state.h"
#include "protocol/client_call.h"
#include "protocol/socket_calls.h"
#include "tests/connection/client/gateway_access_for.h"
#include "tests/support/fake_gateway.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

const std::string versionReply =
    httpReply(envelope("<m:getVersionResponse><nVersion>103</nVersion></m:getVersionResponse>"));

/// The result of a version query with a record that is not empty.
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

TEST(GatewayClient, installsOnlyCompleteProxyFields) {
  for (const auto& [user, password, host, installedUser, installedHost] :
       Cases<const char*, const char*, const char*, const char*, const char*>{
           {"u", "p", "h", "u", "h"},
           {"u", "", "h", nullptr, "h"},
           {"", "", "h", nullptr, "h"},
           {"", "", "", nullptr, nullptr}}) {
    GatewayAccess access = accessTo("http://gateway.invalid:1/x");
    access.proxyUser = user;
    access.proxyPassword = password;
    access.proxyHost = host;
    access.proxyPort = 3128;
    const GatewayClient client(access);
    EXPECT_STREQ(client.soap->proxy_userid, installedUser);
    EXPECT_STREQ(client.soap->proxy_passwd, installedUser ? password : nullptr);
    EXPECT_STREQ(client.soap->proxy_host, installedHost);
    EXPECT_EQ(client.soap->proxy_port == 3128, installedHost != nullptr);
  }
}

TEST(GatewayClient, unreachableGatewaysAreTransportErrors) {
  for (const std::string& endpoint :
       {"http://127.0.0.1:" + std::to_string(closedPort()) + "/x", std::string("http://gateway.invalid:1/x"),
        std::string("http://127.0.0.1:0/x"), std::string("no address"), std::string()}) {
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

/// A loopback address whose backlog is full, so that connections time out.
class SilentAddress {
 public:
  explicit SilentAddress(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK + 1);
    addrinfo target{};
    target.ai_family = AF_INET;
    target.ai_socktype = SOCK_STREAM;
    target.ai_addr = reinterpret_cast<sockaddr*>(&address);
    target.ai_addrlen = sizeof address;
    for (SOAP_SOCKET& each : sockets_) each = protocol::openSocket(target);
    EXPECT_EQ(bind(sockets_[0], target.ai_addr, sizeof address) + listen(sockets_[0], 0), 0);
    for (const SOAP_SOCKET each : {sockets_[1], sockets_[2]})
      EXPECT_TRUE(protocol::startConnecting(each, target));
  }
  ~SilentAddress() {
    for (const SOAP_SOCKET each : sockets_) soap_closesocket(each);
  }

 private:
  std::array<SOAP_SOCKET, 3> sockets_{};
};

/// The duration of a version query to a host with the addresses from `resolve`.
std::chrono::milliseconds queryBy(protocol::Resolver resolve, std::chrono::milliseconds nextAddress, int port,
                                  bool isAnswered) {
  const protocol::IoOptions options{
      .connect = 1s, .nextAddress = nextAddress, .silence = 5s, .resolve = std::move(resolve)};
  ::soap* context = protocol::newClientContext(options);
  const std::string endpoint = "http://gateway.test:" + std::to_string(port) + "/x";
  const auto start = std::chrono::steady_clock::now();
  protocol::getVersion request;
  protocol::getVersionResponse response;
  EXPECT_EQ(protocol::call(context, endpoint.c_str(), request, response) == 0, isAnswered);
  protocol::freeContext(context);
  return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
}

TEST(GatewayClient, triesEveryAddressWithinTheTimeout) {
  FakeGateway gateway(versionReply);
  const SilentAddress silent(gateway.port());
  const auto found = [](const std::vector<std::string>& addresses) {
    return [addresses](const std::string& host) {
      EXPECT_EQ(host, "gateway.test");
      return addresses;
    };
  };
  const auto beside = queryBy(found({"127.0.0.2", "127.0.0.1"}), 200ms, gateway.port(), true);
  EXPECT_GE(beside, 200ms);
  EXPECT_LT(beside, 700ms);
  EXPECT_LT(queryBy(found({"127.0.0.3", "bad", "127.0.0.1"}), 10s, gateway.port(), true), 700ms);
  EXPECT_LT(queryBy(found({"127.0.0.1", "127.0.0.2"}), 0s, gateway.port(), true), 700ms);
  const auto inVain = queryBy(found({"127.0.0.2", "127.0.0.2", "127.0.0.3"}), 100ms, gateway.port(), false);
  EXPECT_GE(inVain, 1s);
  EXPECT_LT(inVain, 1500ms);
  EXPECT_LT(queryBy(found({}), 10s, gateway.port(), false), 700ms);
  const auto stuck = [](const std::string&) {
    std::this_thread::sleep_for(3s);
    return std::vector<std::string>();
  };
  EXPECT_LT(queryBy(stuck, 10s, gateway.port(), false), 1500ms);
}

TEST(GatewayClient, endsAfterTheTotalTimeout) {
  for (const auto manner : {FakeGateway::Manner::Silent, FakeGateway::Manner::Drops}) {
    FakeGateway gateway(versionReply, manner);
    GatewayAccess access = accessTo(gateway.endpoint());
    access.timeouts.whole = 300ms;
    GatewayClient client(access);
    std::int32_t version = 0;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_NE(queryVersion(client, version), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 1s);
  }
}

}  // namespace
}  // namespace parlexo::test
