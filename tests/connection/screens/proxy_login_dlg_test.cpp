// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/screens/proxy_login_dlg.h"

#include "tests/support/fake_proxy_system.h"
#include "tests/support/widgets.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo::test {
namespace {

struct ProxyLoginDlgTest : testing::Test {
  DirectCallRunner runner;
  std::shared_ptr<FakeProxySystem> system = std::make_shared<FakeProxySystem>();
  ProxyDiscovery discovery{QUrl(u"http://www.parlexo.invalid"_s), runner, system};
};

TEST_F(ProxyLoginDlgTest, isEmptyWithoutAProxyAndTabsInReadingOrder) {
  CProxyLoginDlg dialog(discovery);
  for (const QLineEdit* each : dialog.findChildren<QLineEdit*>()) EXPECT_EQ(each->text(), "");
  EXPECT_EQ(dialog.settings().port, 0);
  EXPECT_TRUE(dialog.findChild<CAnimatedPicture*>()->isRunning());
  dialog.show();
  QStringList order;
  for (int i = 0; i < 6; ++i) {
    order << dialog.focusWidget()->objectName();
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order, QStringList({u"proxyUser"_s, u"proxyPassword"_s, u"proxyHost"_s, u"proxyPort"_s, u"ok"_s,
                                u"cancel"_s}));
}

TEST_F(ProxyLoginDlgTest, okReturnsTheInput) {
  for (const auto& [port, number] :
       Cases<QString, int>{{u"8080"_s, 8080}, {u" 81 or so"_s, 81}, {u"abc"_s, 0}, {u"-3"_s, -3}}) {
    CProxyLoginDlg dialog(discovery);
    dialog.show();
    QTest::keyClicks(&child<QLineEdit>(dialog, "proxyUser"), u"mary"_s);
    QTest::keyClicks(&child<QLineEdit>(dialog, "proxyPassword"), u" s3cret "_s);
    QTest::keyClicks(&child<QLineEdit>(dialog, "proxyHost"), u" proxy.local "_s);
    QTest::keyClicks(&child<QLineEdit>(dialog, "proxyPort"), port);
    EXPECT_EQ(child<QLineEdit>(dialog, "proxyPassword").displayText().count(u's'), 0);
    QTest::keyClick(&child<QLineEdit>(dialog, "proxyPort"), Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    const ProxySettings settings = dialog.settings();
    EXPECT_EQ(settings.user, "mary");
    EXPECT_EQ(settings.password, " s3cret ");
    EXPECT_EQ(settings.host, "proxy.local");
    EXPECT_EQ(settings.port, number);
  }
}

TEST_F(ProxyLoginDlgTest, cancelReturnsNothing) {
  system->configured = u"proxy.local:8080"_s;
  const auto answerWith = [this](const QString& button) {
    QTimer::singleShot(0, [button] {
      QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      QTest::mouseClick(dialog->findChild<QWidget*>(button), Qt::LeftButton);
    });
    return ProxyLoginBox(discovery).ask();
  };
  EXPECT_FALSE(answerWith(u"cancel"_s));
  const auto entered = answerWith(u"ok"_s);
  ASSERT_TRUE(entered);
  EXPECT_EQ(entered->host, "proxy.local");
  EXPECT_EQ(entered->port, 8080);
}

}  // namespace
}  // namespace parlexo::test
