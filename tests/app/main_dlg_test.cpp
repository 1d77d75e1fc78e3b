// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_dlg.h"

#include <QScreen>
#include <QTabWidget>

#include "account/screens/news_dlg.h"
#include "app/about_dlg.h"
#include "app/disk_stores.h"
#include "app/login_dlg.h"
#include "app/main_tabs.h"
#include "app/notification_dlg.h"
#include "app/program_screens.h"
#include "connection/client/background_queue.h"
#include "messaging/screens/sms_dlg.h"
#include "simulator/simulator.h"
#include "tests/support/widgets.h"
#include "ui/gradient_page.h"
#include "ui/hyperlink_label.h"
#include "ui/picture_button.h"
#include "ui/waiting/progress_box.h"

namespace parlexo::test {
namespace {

QWidget* pageWithButton(const QString& text) {
  auto* page = new QWidget;
  new PictureButton(text, page);
  return page;
}

struct MainDlgTest : testing::Test {
  void SetUp() override { showActive(window_); }

  void altE() {
    QTest::keyClick(window_.focusWidget() ? window_.focusWidget() : &window_, Qt::Key_E, Qt::AltModifier);
  }

  CMainDlg window_{{{u"SMS"_s, [] { return pageWithButton(u"S&end >"_s); }},
                    {u"Status"_s, [] { return pageWithButton(u"Get &Status"_s); }}}};
};

TEST_F(MainDlgTest, ctrlTabAndCtrlDigitsSwitchTabs) {
  const auto* tabs = window_.findChild<QTabWidget*>();
  auto* exit = window_.findChild<QWidget*>(u"exit"_s);
  exit->setFocus();
  for (const int expected : {1, 0}) {
    QTest::keyClick(exit, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), expected);
  }
  QTest::keyClick(exit, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(tabs->currentIndex(), 1) << "back from the first is the last";
  for (const auto& [key, tab] : {std::pair{Qt::Key_2, 1}, {Qt::Key_9, 1}, {Qt::Key_1, 0}}) {
    QTest::keyClick(exit, key, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), tab);
  }
}

TEST_F(MainDlgTest, f5RefreshesTheBalanceAndThePageInFront) {
  struct Page final : GradientPage {
    void refresh() override { ++refreshes; }
    int refreshes = 0;
  };
  auto* front = new Page;
  auto* behind = new Page;
  CMainDlg window({{u"A"_s, [front] { return front; }}, {u"B"_s, [behind] { return behind; }}});
  QSignalSpy requests(&window, &CMainDlg::refreshRequested);
  showActive(window);
  QTest::keyClick(&window, Qt::Key_F5);
  EXPECT_EQ(requests.count(), 1);
  EXPECT_EQ(front->refreshes, 1);
  EXPECT_EQ(behind->refreshes, 0);
}

TEST_F(MainDlgTest, outdatedBalanceIsGrey) {
  const auto* balance = window_.findChild<QLineEdit*>(u"balance"_s);
  const QColor current = balance->palette().color(QPalette::Text);
  window_.setBalance(u"7.50"_s);
  window_.markBalanceOutdated();
  EXPECT_EQ(balance->text(), u"7.50"_s);
  EXPECT_NE(balance->palette().color(QPalette::Text), current);
  EXPECT_FALSE(balance->accessibleDescription().isEmpty());
  window_.setBalance(u"7.50"_s);
  EXPECT_EQ(balance->palette().color(QPalette::Text), current);
  EXPECT_TRUE(balance->accessibleDescription().isEmpty());
}

TEST_F(MainDlgTest, largePageScrollsToTheFocus) {
  const auto makePage = [] {
    auto* page = pageWithButton(u"Near"_s);
    page->setMinimumSize(3000, 3000);
    auto* far = new PictureButton(u"Far"_s, page);
    far->setObjectName(u"far"_s);
    far->move(2900, 2900);
    return page;
  };
  CMainDlg window({{u"A"_s, makePage}});
  window.show();
  window.resize(600, 400);
  EXPECT_EQ(window.size(), QSize(600, 400));
  const auto* far = window.findChild<PictureButton*>(u"far"_s);
  EXPECT_TRUE(far->visibleRegion().isEmpty());
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (int i = 0; i < 2; ++i) QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
  EXPECT_TRUE(far->hasFocus());
  EXPECT_FALSE(far->visibleRegion().isEmpty());
}

TEST_F(MainDlgTest, onlyExitCtrlQAndTheCloseButtonCloseIt) {
  QTest::keyClick(&window_, Qt::Key_Escape);
  QTest::keyClick(&window_, Qt::Key_Return);
  EXPECT_TRUE(window_.isVisible());
  QTest::keyClick(&window_, Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(window_.isVisible());
  window_.show();
  window_.close();
  EXPECT_FALSE(window_.isVisible());
  window_.show();
  QTest::mouseClick(window_.findChild<QWidget*>(u"exit"_s), Qt::LeftButton);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(MainDlgTest, altESendsOnSendPagesAndExitsElsewhere) {
  QSignalSpy sent(window_.findChild<QTabWidget*>()->widget(0)->findChild<PictureButton*>(),
                  &PictureButton::clicked);
  altE();
  EXPECT_TRUE(QTest::qWaitFor([&] { return sent.count() == 1; }));
  EXPECT_TRUE(window_.isVisible());
  window_.openTab(u"Status"_s);
  altE();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window_.isVisible(); }));
  EXPECT_EQ(sent.count(), 1);
}

TEST_F(MainDlgTest, aboutOpensOverTheModelessMainWindow) {
  EXPECT_EQ(window_.windowType(), Qt::Window);
  EXPECT_FALSE(window_.isModal());
  QStringList versions;
  const auto checkAbout = [&versions, this] {
    auto* about = qobject_cast<CAboutDlg*>(QApplication::activeModalWidget());
    if (!about) return;
    EXPECT_EQ(about->parentWidget(), &window_);
    EXPECT_EQ(frontWindow(), about);
    versions << about->findChild<QLabel*>(u"version"_s)->text().section(u'\n', 0, 0);
    about->close();
  };
  QTimer::singleShot(0, &window_, checkAbout);
  QTest::keyClick(&window_, Qt::Key_F1);
  QTimer::singleShot(0, &window_, checkAbout);
  QTest::mouseClick(window_.findChild<HyperlinkLabel*>(u"about"_s), Qt::LeftButton);
  EXPECT_EQ(versions, QStringList({u"Parlexo Client v2.24"_s, u"Parlexo Client v2.24"_s}));
}

/// Calls `act` every 10 ms with the window in front.
class ScreenWatch {
 public:
  explicit ScreenWatch(const std::function<void(QWidget&)>& act) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [act] {
      if (QWidget* front = frontWindow()) act(*front);
    });
    timer_.start(10);
  }

 private:
  QTimer timer_;
};

struct MainTabsTest : testing::Test {
  // Closes the messages about the missing gateway, which pages call on creation.
  ScreenWatch reader_{[](QWidget& front) {
    if (auto* message = qobject_cast<CNotificationDlg*>(&front)) message->close();
  }};
  QTemporaryDir folder_;
  RunState state_;
  Settings settings_{folder_.path()};
  DirectCallRunner runner_;
  Gateway gateway_{state_, runner_};
  NotificationNotifier notifier_{settings_};
  ProgressBox progress_;
  DiskStores stores_{settings_, notifier_, progress_};
  BackgroundQueue queue_;
  BackgroundGateway background_{state_, queue_};
  ProgramScreens windows_{{state_, settings_, stores_, gateway_, background_, notifier_, progress_, runner_}};
  CMainDlg window_{createMainTabs({state_, gateway_, notifier_, progress_, windows_, stores_.addressBook(),
                                   stores_.statusLog(), stores_.statusFile(), stores_.templates(), settings_},
                                  {stores_.addressBook(), notifier_, progress_, settings_, runner_},
                                  {state_, settings_, gateway_, notifier_, progress_})};
};

TEST_F(MainTabsTest, sendPagesUpdateTheStatusPage) {
  connectPages(window_);
  const auto* tabs = window_.findChild<QTabWidget*>();
  auto* sms = window_.findChild<CQuillonSMSDlg*>();
  const auto* type = tabs->widget(7)->findChild<QComboBox*>();

  Q_EMIT sms->messageSent(MessageType::Fax);
  EXPECT_EQ(type->currentText(), u"Fax"_s);
  EXPECT_EQ(tabs->currentIndex(), 0);

  Q_EMIT sms->statusRequested(MessageType::Sms);
  EXPECT_EQ(type->currentText(), u"SMS"_s);
  EXPECT_EQ(tabs->tabText(tabs->currentIndex()), u"Status"_s);
}

TEST_F(MainTabsTest, balanceComesAfterThePagesAndAgainForAnotherUserOnly) {
  simulator::Options options;
  options.accounts.push_back({u"ann"_s, u"secret"_s, 7.5, true, {}});
  simulator::Simulator simulator(options);
  ASSERT_TRUE(simulator.start());
  state_.gateway.endpoint = simulator.site() + u"/ccx/onlineCommunication"_s;
  QStringList balances;
  QStringList users{u"demo"_s, u"demo1234"_s, u"demo"_s, u"demo1234"_s, u"ann"_s, u"secret"_s};
  bool hasReadNews = false;
  const ScreenWatch user([&](QWidget& front) {
    if (auto* news = qobject_cast<CNewsDlg*>(&front)) {
      hasReadNews = true;
      news->accept();
    } else if (auto* login = qobject_cast<CLoginDlg*>(&front)) {
      login->findChild<QLineEdit*>(u"userName"_s)->setText(users.takeFirst());
      login->findChild<QLineEdit*>(u"password"_s)->setText(users.takeFirst());
      login->findChild<QAbstractButton*>(u"logIn"_s)->click();
    } else if (auto* window = qobject_cast<CMainDlg*>(&front); window && hasReadNews) {
      balances << window->findChild<QLineEdit*>(u"balance"_s)->text();
      if (users.isEmpty()) return window->accept();
      // A timer does not fire again inside its own slot.
      QTimer::singleShot(0, window, [this] { windows_.logInAgain(); });
    }
  });
  ASSERT_TRUE(windows_.logIn());
  windows_.runMainWindow();
  EXPECT_EQ(balances, QStringList({u"100.00"_s, u"100.00"_s, u"7.50"_s}));
  const QStringList calls = simulator.calledOperations();
  EXPECT_EQ(calls.first(5), QStringList({"sessionStart", "getAccountHistory", "getEmailMessaging",
                                         "getAccountBalance", "getNews"}));
  EXPECT_EQ(calls.count(u"getAccountBalance"_s), 2);
}

TEST_F(MainTabsTest, windowOpensWhereItWasLeft) {
  const auto geometryAfter = [this](const std::function<void(CMainDlg&)>& act) {
    QRect geometry;
    const ScreenWatch user([&](QWidget& front) {
      auto* window = qobject_cast<CMainDlg*>(&front);
      if (!window) front.close();  // a message before the window opens
      if (!window || !window->isActiveWindow()) return;
      act(*window);
      geometry = window->geometry();
      window->accept();
    });
    windows_.runMainWindow();
    return geometry;
  };
  const auto nothing = [](CMainDlg&) {};
  const QRect left = geometryAfter(
      [](CMainDlg& window) { window.setGeometry(40, 60, window.width() + 30, window.height() + 20); });
  EXPECT_EQ(geometryAfter(nothing), left);
  settings_.setWindowGeometry("nonsense");
  EXPECT_NE(geometryAfter(nothing), left);
}

TEST_F(MainTabsTest, fitASmallScreen) {
  EXPECT_LE(window_.width(), window_.screen()->availableSize().width());
  const QSize smallest = window_.minimumSizeHint();
  EXPECT_LE(smallest.width(), 800);
  EXPECT_LE(smallest.height(), 560) << "600 without the title bar and a task bar";
}

}  // namespace
}  // namespace parlexo::test
