// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTimer>

#include "connection/locator/gateway_search.h"
#include "tests/support/fake_gateway.h"
#include "tests/support/fake_proxy_system.h"
#include "tests/support/test.h"
#include "tests/ui/waiting/sample_page.h"
#include "ui/waiting/progress_box.h"
#include "ui/waiting/thread_call_runner.h"

namespace parlexo::test {
namespace {

struct NoLogin final : ProxyLogin {
  std::optional<ProxySettings> ask() override {
    ADD_FAILURE() << "nobody wanted a login";
    return std::nullopt;
  }
};

TEST(LocatorCancel, cancelInTheBoxEndsTheSearch) {
  const FakeGateway silent({}, FakeGateway::Manner::Silent);
  const QUrl site(QString::fromStdString(silent.base()));
  ProgressBox progress;
  ThreadCallRunner runner(progress, {.untilBox = 20ms, .untilCancel = 100ms});
  const ServerLocator locator(site);
  const ProxyDiscovery discovery(site, runner, std::make_shared<FakeProxySystem>());
  NoLogin login;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [] {
    auto* cancel = boxes().front()->findChild<QAbstractButton*>();
    if (cancel->isVisible()) QTest::mouseClick(cancel, Qt::LeftButton);
  });
  user.start(5ms);

  RunState state;
  QElapsedTimer clock;
  clock.start();
  progress.show();
  EXPECT_FALSE(GatewaySearch({locator, discovery, runner, progress, login}).run(state));
  EXPECT_LT(clock.elapsed(), 3000) << "the site would have been waited for half a minute";
  EXPECT_EQ(silent.requestCount(), 1) << "no second attempt";
  EXPECT_TRUE(state.gateway.endpoint.isEmpty());
}

}  // namespace
}  // namespace parlexo::test
