// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/locator/server_locator.h"

#include <deque>
#include <thread>

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include "connection/locator/locator_document.h"
#include "tests/support/fake_gateway.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

const std::string xmlHead = "<?xml version=\"1.0\"?>";
const std::string serverLine =
    R"(<server ip="10.0.0.7" port="8080" maxfilesize="2097152" maxfilesizemobile="51200">)";
const std::string versionLine = R"(<version product="client" version="2.24"/>)";

std::string lines(const std::vector<std::string>& each, const char* end = "\n") {
  std::string text;
  for (const std::string& line : each) text.append(line).append(end);
  return text;
}

/// A valid locator document.
const std::string locatorText = lines({xmlHead, serverLine, versionLine, "</server>"});

TEST(LocatorDocument, hasFiveValuesAndTheEndpoint) {
  for (const std::string& each : std::vector<std::string>{
           locatorText,
           lines({xmlHead, " \t" + serverLine + " ", "<!-- more -->", "", "  " + versionLine}, "\r\n"),
           lines({"", serverLine, "<version product=\"server\" version=\"9\">", versionLine}),
           lines({"anything", serverLine, versionLine, "<version product=\"client\" version=\"9\"/>"}),
           locatorText.substr(0, locatorText.find("/>")),
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

TEST(LocatorDocument, malformedDocumentIsRejected) {
  for (const auto& [what, document] : Cases<const char*, std::vector<std::string>>{
           {"server on line 3", {xmlHead, "", serverLine, versionLine}},
           {"attribute between",
            {xmlHead, serverLine, R"(<version product="client" build="1" version="2">)"}},
           {"cut version", {xmlHead, serverLine, R"(<version product="client" version="2.2)"}},
           {"the first one counts", {xmlHead, serverLine, R"(<version product="client" >)", versionLine}},
           {"extra attribute",
            {xmlHead, R"(<server ip="h" port="1" name="x" maxfilesize="1" maxfilesizemobile="2">)",
             versionLine}},
           {"empty host",
            {xmlHead, R"(<server ip="" port="1" maxfilesize="1" maxfilesizemobile="2">)", versionLine}},
       }) {
    EXPECT_FALSE(parseLocatorDocument(QByteArray::fromStdString(lines(document)))) << what;
  }
}

using Outcome = ServerLocator::Outcome;

LocatorLimits quickLimits() {
  return {.transfer = 1s, .retryDelay = 50ms, .documentBytes = 64 * 1024, .whole = 1500ms};
}

Outcome locate(const std::string& site, RunState& state) {
  return ServerLocator(QUrl(QString::fromStdString(site)), quickLimits()).locate(state);
}

/// The header lines of a request without the language, which depends on the machine.
QStringList requestHead(const std::string& request) {
  QStringList lines = QString::fromStdString(request).split(u"\r\n"_s, Qt::SkipEmptyParts);
  lines.removeIf([](const QString& line) { return line.startsWith(u"Accept-Language: "); });
  return lines;
}

TEST(ServerLocator, sendsNoUserData) {
  FakeGateway site(httpReply(locatorText));
  RunState state;
  state.proxy.user = u"proxy user without a proxy"_s;
  state.proxy.password = u"secret"_s;
  EXPECT_EQ(locate(site.base(), state), Outcome::Located);
  EXPECT_EQ(state.gateway.host, "10.0.0.7");
  const QString host = u"Host: 127.0.0.1:%1"_s.arg(site.port());
  EXPECT_THAT(
      requestHead(site.lastRequest()),
      UnorderedElementsAre(u"GET /WSDLServerLocator.xml HTTP/1.1"_s, host,
                           u"Accept: text/plain, text/html, text/htm, text/xml"_s,
                           u"User-Agent: Parlexo/1.0"_s, u"Accept-Encoding: identity"_s,
                           u"Connection: Keep-Alive"_s, u"Cache-Control: no-cache"_s, u"Pragma: no-cache"_s));
}

TEST(ServerLocator, otherRepliesLocateNothing) {
  const std::string cut = httpReply(locatorText).substr(0, httpReply(locatorText).size() - 5);
  for (const auto& [reply, outcome] : Cases<std::string, Outcome>{
           {httpReply(locatorText, "404 Not Found"), Outcome::NotLocated},
           {httpReply(locatorText, "201 Created"), Outcome::NotLocated},
           {httpReply(locatorText, "407 Proxy Authentication Required"), Outcome::ProxyRefusal},
           {httpReply(lines({xmlHead, serverLine, std::string(70'000, ' '), versionLine})),
            Outcome::NotLocated},
           {cut, Outcome::NotLocated},
           {"", Outcome::NotLocated},
       }) {
    FakeGateway site(reply);
    RunState state;
    EXPECT_EQ(locate(site.base(), state), outcome) << reply.substr(0, 60);
    EXPECT_TRUE(state.gateway.host.isEmpty());
    EXPECT_TRUE(state.gateway.endpoint.isEmpty());
    EXPECT_EQ(state.gateway.maxFileSize, 0);
  }
}

std::string redirectTo(const std::string& location, const std::string& status = "302 Found") {
  return "HTTP/1.1 " + status + "\r\nLocation: " + location + "\r\nContent-Length: 0\r\n\r\n";
}

TEST(ServerLocator, followsUpToFiveRedirects) {
  std::deque<FakeGateway> chain;
  chain.emplace_back(httpReply(locatorText));
  for (const char* status : {"301 Moved Permanently", "302 Found", "303 See Other", "307 Temporary Redirect",
                             "308 Permanent Redirect", "302 Found"}) {
    RunState state;
    EXPECT_EQ(locate(chain.back().base(), state), Outcome::Located) << status;
    chain.emplace_back(redirectTo(chain.back().base() + "/elsewhere?a=b", status));
  }
  RunState state;
  EXPECT_EQ(locate(chain.back().base(), state), Outcome::NotLocated);
  EXPECT_EQ(requestHead(chain.front().lastRequest()).value(0), u"GET /elsewhere?a=b HTTP/1.1"_s);

  FakeGateway loop(redirectTo("/WSDLServerLocator.xml"));
  EXPECT_EQ(locate(loop.base(), state), Outcome::NotLocated);
  EXPECT_EQ(loop.requestCount(), 6);
}

TEST(ServerLocator, redirectsNeverDropEncryption) {
  const QUrl open(u"http://a.test/x/y"_s);
  const QUrl encrypted(u"https://a.test/x/y"_s);
  const auto target = [](const QUrl& from, const char* to) {
    return redirectTarget(from, QUrl(QLatin1String(to))).toString();
  };
  EXPECT_EQ(target(open, "https://b.test/z"), u"https://b.test/z"_s);
  EXPECT_EQ(target(encrypted, "../z"), u"https://a.test/z"_s);
  EXPECT_EQ(target(encrypted, "//b.test/"), u"https://b.test/"_s);
  for (const char* to : {"http://a.test/x/z", "ftp://a.test/", "file:///etc/passwd", "https:///z", ""})
    EXPECT_EQ(target(encrypted, to), QString()) << to;
}

TEST(ServerLocator, downloadStopsAtTheSizeLimit) {
  const std::string endlessHead = "HTTP/1.1 200 OK\r\n\r\n";
  for (const auto& [reply, manner, outcome] : Cases<std::string, FakeGateway::Manner, Outcome>{
           {httpReply(locatorText + std::string(100 << 20, '\n')), FakeGateway::Manner::Answers,
            Outcome::Located},
           {httpReply(std::string(100 << 20, 'x')), FakeGateway::Manner::Answers, Outcome::NotLocated},
           {endlessHead + locatorText, FakeGateway::Manner::Endless, Outcome::Located},
           {endlessHead, FakeGateway::Manner::Endless, Outcome::NotLocated},
           {"HTTP/1.1 200 OK\r\nX: ", FakeGateway::Manner::Endless, Outcome::NotLocated},
       }) {
    FakeGateway site(reply, manner);
    RunState state;
    EXPECT_EQ(locate(site.base(), state), outcome);
    // Includes the socket buffers of both ends.
    EXPECT_LT(site.bytesSent(), 24u << 20);
  }
}

TEST(ServerLocator, slowSitesTimeOut) {
  for (const auto manner : {FakeGateway::Manner::Silent, FakeGateway::Manner::Drops}) {
    FakeGateway site(httpReply(locatorText), manner);
    RunState state;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(locate(site.base(), state), Outcome::NotLocated);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 3500ms);
    EXPECT_EQ(site.requestCount(), 1);
    EXPECT_TRUE(state.gateway.host.isEmpty());
  }
}

TEST(ServerLocator, retriesTheConnectionOnce) {
  const int port = closedPort();
  // The port is closed when the download begins.
  QTcpServer late;
  QObject::connect(&late, &QTcpServer::newConnection, &late, [&] {
    QTcpSocket* incoming = late.nextPendingConnection();
    QObject::connect(incoming, &QTcpSocket::readyRead, incoming, [incoming] {
      if (incoming->readAll().endsWith("\r\n\r\n")) {
        incoming->write(QByteArray::fromStdString(httpReply(locatorText)));
        incoming->disconnectFromHost();
      }
    });
  });
  QTimer::singleShot(100ms, &late, [&] { late.listen(QHostAddress::LocalHost, static_cast<quint16>(port)); });
  RunState state;
  const QUrl address(u"http://127.0.0.1:%1"_s.arg(port));
  LocatorLimits limits = quickLimits();
  limits.retryDelay = 400ms;
  EXPECT_EQ(ServerLocator(address, limits).locate(state), Outcome::Located);
}

TEST(ServerLocator, failsAfterTheSecondRefusedConnection) {
  RunState state;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(locate("http://127.0.0.1:" + std::to_string(closedPort()), state), Outcome::NotLocated);
  const auto spent = std::chrono::steady_clock::now() - start;
  EXPECT_GE(spent, 50ms);
  EXPECT_LT(spent, 1s);
}

TEST(ServerLocator, proxyPortOutOfRangeIsRejected) {
  FakeGateway proxy(httpReply(locatorText));
  for (const int port : {0, -1, 65536 + proxy.port()}) {
    RunState state;
    state.proxy = {.password = {}, .user = {}, .host = u"127.0.0.1"_s, .port = port};
    EXPECT_EQ(locate(proxy.base(), state), Outcome::NotLocated) << port;
  }
  EXPECT_EQ(proxy.requestCount(), 0);
}

}  // namespace
}  // namespace parlexo::test
