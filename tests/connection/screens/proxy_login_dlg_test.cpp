#include "connection/screens/proxy_login_dlg.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "tests/support/fake_proxy_system.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

class ProxyLoginDlgTest : public ::testing::Test {
 protected:
  static QLineEdit& field(const QWidget& dialog, const QString& name) {
    return *dialog.findChild<QLineEdit*>(name);
  }

  DirectCallRunner runner;
  std::shared_ptr<FakeProxySystem> system = std::make_shared<FakeProxySystem>();
  ProxyDiscovery discovery{QUrl(u"http://www.parlexo.invalid"_qs), runner, system};
};

TEST_F(ProxyLoginDlgTest, isEmptyWhenNoneWasFoundAndTabsInReadingOrder) {
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
  EXPECT_EQ(order, QStringList({u"proxyUser"_qs, u"proxyPassword"_qs, u"proxyHost"_qs, u"proxyPort"_qs,
                                u"ok"_qs, u"cancel"_qs}));
}

TEST_F(ProxyLoginDlgTest, okHandsOutWhatWasTyped) {
  struct Case {
    QString port;
    int number;
  };
  for (const Case& each : {Case{u"8080"_qs, 8080}, {u" 81 or so"_qs, 81}, {u"abc"_qs, 0}, {u"-3"_qs, -3}}) {
    CProxyLoginDlg dialog(discovery);
    dialog.show();
    QTest::keyClicks(&field(dialog, u"proxyUser"_qs), u"mary"_qs);
    QTest::keyClicks(&field(dialog, u"proxyPassword"_qs), u" s3cret "_qs);
    QTest::keyClicks(&field(dialog, u"proxyHost"_qs), u" proxy.local "_qs);
    QTest::keyClicks(&field(dialog, u"proxyPort"_qs), each.port);
    EXPECT_EQ(field(dialog, u"proxyPassword"_qs).displayText().count(u's'), 0);
    QTest::keyClick(&field(dialog, u"proxyPort"_qs), Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    const ProxySettings settings = dialog.settings();
    EXPECT_EQ(settings.user, "mary");
    EXPECT_EQ(settings.password, " s3cret ");
    EXPECT_EQ(settings.host, "proxy.local");
    EXPECT_EQ(settings.port, each.number);
  }
}

TEST_F(ProxyLoginDlgTest, boxTellsCancelFromOk) {
  system->configured = u"proxy.local:8080"_qs;
  const auto answerWith = [this](const QString& button) {
    QTimer::singleShot(0, [button] {
      QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      QTest::mouseClick(dialog->findChild<QWidget*>(button), Qt::LeftButton);
    });
    return ProxyLoginBox(discovery).ask();
  };
  EXPECT_FALSE(answerWith(u"cancel"_qs));
  const auto entered = answerWith(u"ok"_qs);
  ASSERT_TRUE(entered);
  EXPECT_EQ(entered->host, "proxy.local");
  EXPECT_EQ(entered->port, 8080);
}

}  // namespace
}  // namespace parlexo
