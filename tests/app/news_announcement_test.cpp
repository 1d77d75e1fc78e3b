// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/news_announcement.h"

#include <QMenu>
#include <QVBoxLayout>

#include "account/screens/news_dlg.h"
#include "tests/support/widgets.h"
#include "ui/gradient_page.h"

namespace parlexo::test {
namespace {

/// A window with a field in which the user types.
struct NewsAnnouncementTest : testing::Test {
  NewsAnnouncementTest() {
    (new QVBoxLayout(&window_))->addWidget(field_);
    showActive(window_);
    field_->setFocus();
  }

  static CNewsDlg* dialog() { return qobject_cast<CNewsDlg*>(QApplication::activeModalWidget()); }

  /// Announces news, calls `act` with the open dialog and closes it. Returns the milliseconds until it
  /// opened, or -1 if it did not open within 5 s.
  qint64 announce(const std::function<void(CNewsDlg&)>& act) {
    QElapsedTimer clock;
    qint64 openedAfter = -1;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
      if (!dialog()) return;
      user.stop();
      openedAfter = clock.elapsed();
      const QPointer<CNewsDlg> opened = dialog();
      act(*opened);
      if (opened) opened->accept();
    });
    user.start(10);
    clock.start();
    announcement_.announce(u"Hello"_s);
    (void)QTest::qWaitFor([&] { return openedAfter >= 0 && !dialog(); }, 5000);
    return openedAfter;
  }

  GradientPage window_;
  QLineEdit* field_ = new QLineEdit;
  NewsAnnouncement announcement_{window_};
};

TEST_F(NewsAnnouncementTest, opensAtOnceForAnIdleUser) {
  field_->clearFocus();
  const qint64 openedAfter = announce([this](CNewsDlg& news) {
    QTest::keyClick(news.windowHandle(), Qt::Key_X);
    EXPECT_EQ(field_->text(), QString()) << "keys belong to the dialog";
  });
  EXPECT_GE(openedAfter, 0);
  EXPECT_LT(openedAfter, 1000);
}

TEST_F(NewsAnnouncementTest, waitsForAPauseAndLeavesKeysToTheFields) {
  auto* next = new QLineEdit;
  window_.layout()->addWidget(next);
  QTest::keyClicks(field_, u"Dear"_s);
  QTimer typist;
  int keys = 0;
  QObject::connect(&typist, &QTimer::timeout, &typist, [&] {
    EXPECT_FALSE(dialog());
    QTest::keyClick(window_.windowHandle(), Qt::Key_A);
    if (++keys == 5) typist.stop();
  });
  typist.start(100);
  const qint64 openedAfter = announce([](CNewsDlg& news) {
    for (const auto key : {Qt::Key_C, Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab, Qt::Key_1})
      QTest::keyClick(news.windowHandle(), key);
    EXPECT_TRUE(news.isVisible());
    QTest::qWait(1000);
    QTest::keyClick(news.windowHandle(), Qt::Key_Z);
  });
  EXPECT_GE(openedAfter, 2400);
  EXPECT_EQ(field_->text(), u"Dearaaaaac "_s);
  EXPECT_EQ(next->text(), u"1"_s);
}

TEST_F(NewsAnnouncementTest, closesByEscapeAtOnce) {
  announce([](CNewsDlg& news) {
    QTest::keyClick(news.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(news.isVisible());
  });
}

TEST_F(NewsAnnouncementTest, waitsUntilMenusAndDialogsAreClosed) {
  QMenu menu;
  menu.addAction(u"Paste"_s);
  menu.popup(window_.pos());
  GradientDialog question(&window_);
  QTimer::singleShot(300, &menu, [&] {
    EXPECT_FALSE(dialog());
    question.open();
    menu.close();
  });
  QTimer::singleShot(600, &question, [&] {
    EXPECT_FALSE(dialog());
    question.close();
    window_.activateWindow();
  });
  EXPECT_GE(announce([](CNewsDlg&) {}), 600);
}

}  // namespace
}  // namespace parlexo::test
