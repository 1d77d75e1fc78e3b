#include "app/main_dlg.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "app/about_dlg.h"
#include "app/main_tabs.h"
#include "ui/hyperlink_label.h"
#include "ui/look.h"
#include "ui/picture_button.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

QWidget* pageWithButton(const QString& text) {
  auto* page = new QWidget;
  new PictureButton(text, page);
  return page;
}

class MainDlgTest : public testing::Test {
 protected:
  void SetUp() override {
    window_.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  void altE() {
    QTest::keyClick(window_.focusWidget() ? window_.focusWidget() : &window_, Qt::Key_E, Qt::AltModifier);
  }

  CMainDlg window_{{{u"SMS"_qs, [] { return pageWithButton(u"S&end >"_qs); }},
                    {u"Status"_qs, [] { return pageWithButton(u"Get &Status"_qs); }}}};
};

TEST_F(MainDlgTest, onlyExitCtrlQAndTheCloseBoxEndIt) {
  QTest::keyClick(&window_, Qt::Key_Escape);
  QTest::keyClick(&window_, Qt::Key_Return);
  EXPECT_TRUE(window_.isVisible());
  QTest::keyClick(&window_, Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(window_.isVisible());
  window_.open();
  window_.close();
  EXPECT_FALSE(window_.isVisible());
  window_.open();
  QTest::mouseClick(window_.findChild<QWidget*>(u"exit"_qs), Qt::LeftButton);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(MainDlgTest, altESendsOnSendPagesAndExitsElsewhere) {
  QSignalSpy sent(window_.findChild<QTabWidget*>()->widget(0)->findChild<PictureButton*>(),
                  &PictureButton::clicked);
  altE();
  EXPECT_TRUE(QTest::qWaitFor([&] { return sent.count() == 1; }));
  EXPECT_TRUE(window_.isVisible());
  window_.openTab(u"Status"_qs);
  altE();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window_.isVisible(); }));
  EXPECT_EQ(sent.count(), 1);
}

TEST_F(MainDlgTest, openedIsToldOnceAndLaterThanTheFirstShow) {
  CMainDlg other({});
  QSignalSpy opened(&other, &CMainDlg::opened);
  other.open();
  EXPECT_EQ(opened.count(), 0);
  other.hide();
  other.show();
  EXPECT_TRUE(opened.wait());
  QCoreApplication::processEvents();
  EXPECT_EQ(opened.count(), 1);
}

TEST_F(MainDlgTest, aboutOpensByF1AndByItsLink) {
  QStringList versions;
  const auto lookAtAbout = [&versions] {
    auto* about = qobject_cast<CAboutDlg*>(QApplication::activeModalWidget());
    if (!about) return;
    versions << about->findChild<QLabel*>(u"version"_qs)->text().section(u'\n', 0, 0);
    about->close();
  };
  QTimer::singleShot(0, &window_, lookAtAbout);
  QTest::keyClick(&window_, Qt::Key_F1);
  QTimer::singleShot(0, &window_, lookAtAbout);
  QTest::mouseClick(window_.findChild<HyperlinkLabel*>(u"about"_qs), Qt::LeftButton);
  EXPECT_EQ(versions, QStringList({u"Parlexo Client v2.24"_qs, u"Parlexo Client v2.24"_qs}));
}

TEST(MainTabs, standInTheirOrder) {
  CMainDlg window(mainTabs());
  window.setUserName(u"demo"_qs);
  window.setBalance(u"99.95"_qs);
  QStringList texts;
  const auto* tabs = window.findChild<QTabWidget*>();
  for (int i = 0; i < tabs->count(); ++i) texts << tabs->tabText(i);
  EXPECT_EQ(texts, QStringList({u"SMS"_qs, u"WAP"_qs, u"MMS"_qs, u"Fax"_qs, u"Receive Messages"_qs,
                                u"Contacts"_qs, u"Account History"_qs, u"Status"_qs, u"Settings"_qs}));
  EXPECT_EQ(window.windowTitle(), u"Parlexo(TM) : Messaging Client v2.24"_qs);
  EXPECT_EQ(window.findChild<QLineEdit*>(u"userName"_qs)->text(), u"demo"_qs);
  EXPECT_EQ(window.findChild<QLineEdit*>(u"balance"_qs)->text(), u"99.95"_qs);
  EXPECT_EQ(window.minimumSize(), dialogUnits(window, 558, 330));
}

}  // namespace
}  // namespace parlexo
