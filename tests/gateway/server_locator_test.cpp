#include "gateway/core/server_locator.h"

#include <chrono>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gateway/core/locator_document.h"
#include "tests/gateway/fake_gateway.h"

namespace parlexo {
namespace {

using namespace std::chrono_literals;
using testing::FakeGateway;
using ::testing::HasSubstr;
using testing::httpReply;

const std::string serverLine =
    R"(<server ip="10.0.0.7" port="8080" maxfilesize="2097152" maxfilesizemobile="51200">)";
const std::string versionLine = R"(<version product="client" version="2.24"/>)";
const std::string head = "<?xml version=\"1.0\"?>";

std::string lines(const std::vector<std::string>& each, const char* end = "\n") {
  std::string text;
  for (const std::string& line : each) text.append(line).append(end);
  return text;
}

const std::string document = lines({head, serverLine, versionLine, "</server>"});

TEST(LocatorDocument, tellsTheFiveValuesAndTheEndpoint) {
  for (const std::string& each : std::vector<std::string>{
           document,
           lines({head, " \t" + serverLine + " ", "<!-- more -->", "", "  " + versionLine}, "\r\n"),
           lines({"", serverLine, "<version product=\"server\" version=\"9\">", versionLine}),
           lines({"anything", serverLine, versionLine, "<version product=\"client\" version=\"9\"/>"}),
           document.substr(0, document.find("/>")),
       }) {
    const auto location = parseLocatorDocument(QByteArray::fromStdString(each));
    ASSERT_TRUE(location) << each;
    EXPECT_EQ(location->host, "10.0.0.7");
    EXPECT_EQ(location->port, 8080);
    EXPECT_EQ(location->maxFileSize, 2097152);
    EXPECT_EQ(location->maxFileSizeMobile, 51200);
    EXPECT_EQ(location->latestClientVersion, "2.24");
    EXPECT_EQ(location->endpoint, "http://10.0.0.7:8080/ccx/onlineCommunication");
  }
}

TEST(LocatorDocument, readsNumbersAsFarAsTheyGo) {
  struct Case {
    const char* port;
    int read;
  };
  for (const Case& each :
       {Case{"abc", 0}, {" 81x", 81}, {"-1", -1}, {"+9", 9}, {"0x10", 0}, {"99999999999", 2147483647}}) {
    const std::string server =
        std::string("<server ip=\"h\" port=\"") + each.port + "\" maxfilesize=\"1\" maxfilesizemobile=\"2\">";
    const auto location = parseLocatorDocument(QByteArray::fromStdString(lines({head, server, versionLine})));
    ASSERT_TRUE(location) << each.port;
    EXPECT_EQ(location->port, each.read) << each.port;
    EXPECT_EQ(location->endpoint, QStringLiteral("http://h:%1/ccx/onlineCommunication").arg(each.read));
  }
}

TEST(LocatorDocument, ofAnotherFormTellsNothing) {
  struct Case {
    const char* what;
    std::vector<std::string> document;
  };
  for (const Case& each : std::vector<Case>{
           {"nothing", {}},
           {"one empty line", {""}},
           {"one line", {head}},
           {"server on line 1", {serverLine, versionLine}},
           {"server on line 3", {head, "", serverLine, versionLine}},
           {"version first", {head, versionLine, serverLine}},
           {"no version", {head, serverLine}},
           {"version on the server's line", {head, serverLine + versionLine}},
           {"another product", {head, serverLine, R"(<version product="server" version="1">)"}},
           {"text before the version", {head, serverLine, "x" + versionLine}},
           {"attribute between", {head, serverLine, R"(<version product="client" build="1" version="2">)"}},
           {"empty version", {head, serverLine, R"(<version product="client" version="">)"}},
           {"cut version", {head, serverLine, R"(<version product="client" version="2.2)"}},
           {"the first one counts", {head, serverLine, R"(<version product="client" >)", versionLine}},
           {"extra attribute",
            {head, R"(<server ip="h" port="1" name="x" maxfilesize="1" maxfilesizemobile="2">)",
             versionLine}},
           {"other order",
            {head, R"(<server port="1" ip="h" maxfilesize="1" maxfilesizemobile="2">)", versionLine}},
           {"empty host",
            {head, R"(<server ip="" port="1" maxfilesize="1" maxfilesizemobile="2">)", versionLine}},
           {"other quotes",
            {head, "<server ip='h' port='1' maxfilesize='1' maxfilesizemobile='2'>", versionLine}},
           {"other case",
            {head, R"(<Server ip="h" port="1" maxfilesize="1" maxfilesizemobile="2">)", versionLine}},
           {"three attributes", {head, R"(<server ip="h" port="1" maxfilesize="1">)", versionLine}},
       }) {
    EXPECT_FALSE(parseLocatorDocument(QByteArray::fromStdString(lines(each.document)))) << each.what;
  }
}

LocatorLimits quickLimits() {
  return {.transfer = 1s, .retryDelay = 50ms, .documentBytes = 64 * 1024};
}

ServerLocator::Outcome locate(const std::string& site, RunState& state) {
  return ServerLocator(QUrl(QString::fromStdString(site)), quickLimits()).locate(state);
}

TEST(ServerLocator, fetchesTheDocumentWithItsHeaders) {
  FakeGateway site(httpReply(document));
  RunState state;
  EXPECT_EQ(locate(site.base(), state), ServerLocator::Outcome::Located);
  EXPECT_EQ(state.gateway.host, "10.0.0.7");
  const std::string request = site.lastRequest();
  EXPECT_EQ(request.find("GET /WSDLServerLocator.xml HTTP/1.1\r\n"), 0u) << request;
  EXPECT_THAT(request, HasSubstr("\r\nAccept: text/plain, text/html, text/htm, text/xml\r\n"));
  EXPECT_THAT(request, HasSubstr("\r\nUser-Agent: Parlexo/1.0\r\n"));
}

TEST(ServerLocator, otherAnswersLocateNothingAndKeepNothing) {
  const std::string cut = httpReply(document).substr(0, httpReply(document).size() - 5);
  struct Case {
    std::string reply;
    ServerLocator::Outcome outcome;
  };
  for (const Case& each : std::vector<Case>{
           {httpReply(document, "404 Not Found"), ServerLocator::Outcome::NotLocated},
           {httpReply(document, "500 Internal Server Error"), ServerLocator::Outcome::NotLocated},
           {httpReply(document, "201 Created"), ServerLocator::Outcome::NotLocated},
           {"HTTP/1.1 302 Found\r\nLocation: /WSDLServerLocator.xml\r\nContent-Length: 0\r\n\r\n",
            ServerLocator::Outcome::NotLocated},
           {httpReply(document, "407 Proxy Authentication Required"), ServerLocator::Outcome::ProxyRefusal},
           {httpReply(lines({head, serverLine})), ServerLocator::Outcome::NotLocated},
           {httpReply(lines({head, serverLine, std::string(70'000, ' '), versionLine})),
            ServerLocator::Outcome::NotLocated},
           {cut, ServerLocator::Outcome::NotLocated},
           {"nonsense", ServerLocator::Outcome::NotLocated},
           {"", ServerLocator::Outcome::NotLocated},
       }) {
    FakeGateway site(each.reply);
    RunState state;
    EXPECT_EQ(locate(site.base(), state), each.outcome) << each.reply.substr(0, 60);
    EXPECT_TRUE(state.gateway.host.isEmpty());
    EXPECT_TRUE(state.gateway.endpoint.isEmpty());
    EXPECT_EQ(state.gateway.maxFileSize, 0);
  }
}

TEST(ServerLocator, readsNoFurtherThanTheLimit) {
  FakeGateway site(httpReply(document + std::string(8 << 20, '\n')));
  RunState state;
  EXPECT_EQ(locate(site.base(), state), ServerLocator::Outcome::Located);
}

TEST(ServerLocator, silentSiteEndsTheDownload) {
  FakeGateway site("", FakeGateway::Manner::Silent);
  RunState state;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(locate(site.base(), state), ServerLocator::Outcome::NotLocated);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
  EXPECT_EQ(site.requestCount(), 1);
}

TEST(ServerLocator, triesOnceMoreWhenNothingListens) {
  RunState state;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(locate("http://127.0.0.1:" + std::to_string(testing::closedPort()), state),
            ServerLocator::Outcome::NotLocated);
  EXPECT_GE(std::chrono::steady_clock::now() - start, 50ms);
}

TEST(ServerLocator, usesTheProxyOfTheRun) {
  FakeGateway proxy(httpReply(document));
  RunState state;
  state.proxy.host = QStringLiteral("127.0.0.1");
  state.proxy.port = proxy.port();
  EXPECT_EQ(locate("http://www.parlexo.invalid", state), ServerLocator::Outcome::Located);
  EXPECT_EQ(proxy.lastRequest().find("GET http://www.parlexo.invalid/WSDLServerLocator.xml HTTP/1.1\r\n"),
            0u);
}

}  // namespace
}  // namespace parlexo

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  ::testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
