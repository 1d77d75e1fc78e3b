// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/progress_box.h"

#include <QThread>

#include "tests/support/widgets.h"
#include "tests/ui/waiting/sample_page.h"

namespace parlexo::test {
namespace {

const QString defaultLabel = u"Connecting to the Parlexo gateway."_s;

TEST(ProgressBox, labelComesFromTheFirstShowOrFromSetText) {
  ProgressBox progress;
  progress.setText(u"nothing shows"_s);
  EXPECT_TRUE(boxes().isEmpty());
  progress.show();
  EXPECT_EQ(progress.text(), defaultLabel);
  progress.hide();
  progress.show(u"Loading Contacts from Database..."_s);
  EXPECT_EQ(progress.text(), u"Loading Contacts from Database..."_s);
  progress.show(u"other"_s);
  EXPECT_EQ(progress.text(), u"Loading Contacts from Database..."_s);
  progress.setText({});
  EXPECT_EQ(progress.text(), defaultLabel);
  progress.hide();
  progress.hide();
  EXPECT_TRUE(boxes().isEmpty());
}

TEST(ProgressBox, fitsItsTextAndCannotBeClosedByTheUser) {
  SamplePage page;
  ProgressBox progress;
  progress.show();
  CConnectingDlg* box = boxes().front();
  EXPECT_EQ(box->parentWidget(), &page.window);
  progress.setText(QString(80, QLatin1Char('M')));
  EXPECT_GE(box->findChild<QLabel*>()->width(),
            box->fontMetrics().horizontalAdvance(QString(80, QLatin1Char('M'))));
  const int wide = box->width();
  progress.setText(u"short"_s);
  EXPECT_EQ(box->width(), wide);
  QTest::keyClick(box, Qt::Key_Escape);
  box->close();
  EXPECT_TRUE(box->isVisible());
}

TEST(ProgressBox, opensOverTheModalWindowIfNoneIsActive) {
  GradientDialog dialog;
  dialog.setModal(true);
  showActive(dialog);
  QApplication::setActiveWindow(nullptr);
  ProgressBox progress;
  progress.show();
  EXPECT_EQ(boxes().front()->parentWidget(), &dialog);
}

TEST(ProgressBox, clicksDuringBlockingWorkAreDropped) {
  SamplePage page;
  ProgressBox progress;
  progress.show();
  page.queueClick();
  QThread::msleep(40);
  progress.setText(u"half way"_s);
  page.queueClick();
  progress.hide();
  QCoreApplication::processEvents();
  EXPECT_EQ(page.clicks.count(), 0);
  page.queueClick();
  QCoreApplication::processEvents();
  EXPECT_EQ(page.clicks.count(), 1) << "without the box the page works again";
}

TEST(ProgressBox, transferIsShownUntilTheBoxCloses) {
  ProgressBox progress;
  const Transfer transfer(2 << 20);
  progress.setTransfer(transfer);
  progress.show();
  const auto detail = [] { return boxes().front()->findChild<QLabel*>(u"detail"_s); };
  EXPECT_TRUE(detail()->isHidden());
  progress.setTransfer(transfer);
  for (const auto& [done, shown] :
       {std::pair{0, "0 bytes of 2 MB sent"}, {1'300'000, "1.2 MB of 2 MB sent"}}) {
    transfer.setDone(done);
    EXPECT_TRUE(
        QTest::qWaitFor([&, expected = shown] { return detail()->text() == QLatin1String(expected); }, 1000))
        << shown;
  }
  EXPECT_EQ(progress.text(), defaultLabel);
  progress.hide();
  progress.show();
  QTest::qWait(150);
  EXPECT_TRUE(detail()->isHidden()) << "another wait sends another file";
}

TEST(ProgressBox, boxDestroyedWithItsWindowUnblocksInput) {
  ProgressBox progress;
  {
    const SamplePage gone;
    progress.show();
  }
  EXPECT_FALSE(progress.isShowing());
  SamplePage page;
  QTest::mouseClick(page.send, Qt::LeftButton);
  EXPECT_EQ(page.clicks.count(), 1);
  progress.show();
  EXPECT_EQ(boxes().size(), 1);
}

}  // namespace
}  // namespace parlexo::test
