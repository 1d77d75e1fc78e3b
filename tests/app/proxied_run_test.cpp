// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDeadlineTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpSocket>

#include "app/core/login_flow.h"
#include "connection/locator/gateway_search.h"
#include "tests/app/run_fakes.h"
#include "tests/support/fake_gateway.h"
#include "tests/support/fake_proxy_system.h"
#include "tests/support/file_bytes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

bool listensOn(int port) {
  QTcpSocket socket;
  socket.connectToHost(u"127.0.0.1"_s, static_cast<quint16>(port));
  return socket.waitForConnected(200);
}

/// A tinyproxy on a loopback port that requires the login "mary" with the password "s3cret-word".
class TinyProxy {
 public:
  TinyProxy() {
    const QString settings =
        u"Port %1\nListen 127.0.0.1\nAllow 127.0.0.1\nTimeout 20\nMaxClients 20\n"
        "BasicAuth mary s3cret-word\nLogLevel Info\nLogFile \"%2\"\n"_s;
    const QString config = writeBytes(folder_.filePath(u"tinyproxy.conf"_s),
                                      settings.arg(port_).arg(folder_.filePath(u"log"_s)).toUtf8());
    process_.start(u"tinyproxy"_s, {u"-d"_s, u"-c"_s, config});
    if (!process_.waitForStarted()) return;
    const QDeadlineTimer deadline(10'000);
    while (!listensOn(port_) && !process_.waitForFinished(20) && !deadline.hasExpired()) {
    }
  }
  ~TinyProxy() {
    process_.kill();
    process_.waitForFinished();
  }
  TinyProxy(const TinyProxy&) = delete;
  TinyProxy& operator=(const TinyProxy&) = delete;

  [[nodiscard]] bool isRunning() const { return process_.state() == QProcess::Running; }
  [[nodiscard]] int port() const { return port_; }

  /// The logged request lines, such as "GET http://127.0.0.1:80/x HTTP/1.1", including refused ones.
  [[nodiscard]] QStringList requests() const {
    static const QRegularExpression line(u"Request \\(file descriptor \\d+\\): (.*)"_s);
    QStringList requests;
    for (const auto& match : line.globalMatch(log())) requests << match.captured(1);
    return requests;
  }
  /// The number of requests refused for lack of the right login.
  [[nodiscard]] qsizetype refusals() const {
    // A refusal is not logged, the connection of an accepted request is.
    return requests().size() - log().count(u"opensock: opening connection to"_s);
  }

 private:
  [[nodiscard]] QString log() const { return QString::fromUtf8(readBytes(folder_.filePath(u"log"_s))); }

  QTemporaryDir folder_;
  QProcess process_;
  int port_ = closedPort();
};

/// Answers the proxy dialog for the user.
struct JournalProxyLogin final : ProxyLogin {
  explicit JournalProxyLogin(Journal& journal) : journal_(journal) {}

  std::optional<ProxySettings> ask() override {
    journal_ << u"proxy login"_s;
    return entered;
  }

  std::optional<ProxySettings> entered;

 private:
  Journal& journal_;
};

/// A run behind a real proxy, with a simulator as the site.
struct ProxiedRun : RunTest {
  void SetUp() override {
    ASSERT_TRUE(proxy.isRunning());
    system->configured = u"127.0.0.1:%1"_s.arg(proxy.port());
  }

  [[nodiscard]] ProxySettings mary(const QString& password = u"s3cret-word"_s) const {
    return {.password = password, .user = u"mary"_s, .host = u"127.0.0.1"_s, .port = proxy.port()};
  }

  bool search() { return search(QUrl(simulator.site())); }
  bool search(const QUrl& site) {
    const ServerLocator locator(
        site, {.transfer = std::chrono::seconds(5), .retryDelay = std::chrono::milliseconds(1)});
    // Another host, because a local one needs no proxy.
    const ProxyDiscovery discovery(QUrl(u"http://www.parlexo.invalid"_s), runner, system);
    return GatewaySearch({locator, discovery, runner, progress, login}).run(state);
  }

  [[nodiscard]] QString locatorRequest() const {
    return u"GET %1/WSDLServerLocator.xml HTTP/1.1"_s.arg(simulator.site());
  }
  [[nodiscard]] QString soapRequest() const {
    return u"POST %1/ccx/onlineCommunication HTTP/1.1"_s.arg(simulator.site());
  }

  const Journal asked = {u"(no box)"_s, u"proxy login"_s, u"(box)"_s};
  TinyProxy proxy;
  std::shared_ptr<FakeProxySystem> system = std::make_shared<FakeProxySystem>();
  JournalProxyLogin login{journal};
};

TEST_F(ProxiedRun, allCallsExceptTheLastUseTheProxy) {
  login.entered = mary();
  ASSERT_TRUE(search());
  EXPECT_EQ(journal, asked);
  EXPECT_THAT(proxy.requests(), ElementsAre(locatorRequest(), locatorRequest()));
  EXPECT_EQ(proxy.refusals(), 1);

  ASSERT_EQ(LoginFlow(state, settings, gateway, notifier).attempt(u"demo"_s, u"demo1234"_s),
            LoginOutcome::Accepted);
  EXPECT_EQ(proxy.requests().mid(2), QStringList({soapRequest()}));
  shutDown(state, stores, progress, runner);
  EXPECT_THAT(simulator.calledOperations(), ElementsAre(u"locator"_s, u"sessionStart"_s, u"sessionEnd"_s));
  EXPECT_EQ(proxy.requests().size(), 3);
  EXPECT_EQ(proxy.refusals(), 1);
}

TEST_F(ProxiedRun, wrongLoginFailsAfterOneAttempt) {
  const Cases<const char*, ProxySettings, qsizetype> cases = {
      {"wrong password", mary(u"wrong"_s), 2},
      {"no host", {.password = u"s3cret-word"_s, .user = u"mary"_s, .host = {}, .port = proxy.port()}, 1},
      {"another proxy",
       {.password = u"s3cret-word"_s, .user = u"mary"_s, .host = u"127.0.0.1"_s, .port = closedPort()},
       1},
  };
  for (const auto& [what, entered, requests] : cases) {
    SCOPED_TRACE(what);
    journal.clear();
    const auto before = proxy.requests().size();
    login.entered = entered;
    state = {};
    EXPECT_FALSE(search());
    EXPECT_EQ(journal, asked);
    EXPECT_EQ(proxy.requests().size() - before, requests);
  }
  EXPECT_EQ(proxy.refusals(), proxy.requests().size());
  EXPECT_THAT(simulator.calledOperations(), ElementsAre());
}

TEST_F(ProxiedRun, cancelFailsAndStoresNothing) {
  EXPECT_FALSE(search());
  EXPECT_EQ(journal, asked.first(2));
  EXPECT_EQ(proxy.requests().size(), 1);
  EXPECT_TRUE(state.proxy.host.isEmpty());
}

TEST_F(ProxiedRun, proxyWithoutLoginIsUsedUnlessExcepted) {
  const std::string locator = httpReply(
      "<?xml version=\"1.0\"?>\n<server ip=\"gateway.invalid\" port=\"8080\" maxfilesize=\"1\" "
      "maxfilesizemobile=\"1\">\n<version product=\"client\" version=\"2.24\"/>\n");
  for (const QString& excepted : {u""_s, u"gateway.invalid"_s}) {
    FakeGateway open(locator);
    system->configured = u"http=127.0.0.1:%1;socks=127.0.0.1:1"_s.arg(open.port());
    system->excepted = excepted;
    state = {};
    ASSERT_TRUE(search(QUrl(u"http://www.parlexo.invalid"_s)));
    EXPECT_EQ(state.proxy.host.isEmpty(), !excepted.isEmpty());
    open.setAnswer(
        httpReply(envelope("<m:getVersionResponse><nVersion>103</nVersion></m:getVersionResponse>")));
    const auto reply = gateway.call<&GatewayClient::getVersion>();
    EXPECT_EQ(reply.answered(), excepted.isEmpty());
    const std::string call = "POST http://gateway.invalid:8080/ccx/onlineCommunication HTTP/1.1\r\n";
    EXPECT_EQ(open.lastRequest().starts_with(call), excepted.isEmpty());
  }
  EXPECT_EQ(journal, Journal()) << "no login was asked for";
}

}  // namespace
}  // namespace parlexo::test
