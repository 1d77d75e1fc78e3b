// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/input_block.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QVBoxLayout>
#include <QtTest/qtestspontaneevent.h>

#include "tests/support/widgets.h"
#include "ui/gradient_page.h"
#include "ui/picture_button.h"

namespace parlexo::test {
namespace {

struct SampleWindow {
  explicit SampleWindow(bool modal = false) {
    (new QVBoxLayout(&window))->addWidget(button);
    window.setModal(modal);
    showActive(window);
  }

  /// Presses the button in every way a user can; returns the number of clicks it received.
  int pressInEveryWay() {
    QSignalSpy clicks(button, &QAbstractButton::clicked);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
    QTest::qWait(150);
    // A mnemonic presses with a short animation, which takes longer on a busy machine.
    if (clicks.count() > 0) (void)QTest::qWaitFor([&] { return clicks.count() == 3; }, 2000);
    QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    return int(clicks.count());
  }

  GradientDialog window;
  PictureButton* button = new PictureButton(u"&Send"_s);
};

TEST(InputBlock, inputIsDroppedDuringItsLifetime) {
  SampleWindow sample;
  auto outer = std::make_unique<InputBlock>();
  auto inner = std::make_unique<InputBlock>();
  EXPECT_EQ(sample.pressInEveryWay(), 0);
  inner.reset();
  EXPECT_EQ(sample.pressInEveryWay(), 0) << "the outer block still holds";
  outer.reset();
  EXPECT_EQ(sample.pressInEveryWay(), 4);
}

TEST(InputBlock, closeRequestsAreDroppedOnRequest) {
  SampleWindow sample;
  {
    const InputBlock block(InputBlock::CloseRequests::Dropped);
    sample.window.close();
    EXPECT_TRUE(sample.window.isVisible());
  }
  const InputBlock block;
  sample.window.accept();
  EXPECT_FALSE(sample.window.isVisible()) << "a page's code can end its dialog";
}

TEST(InputBlock, onlyModalWindowsOpenedLaterAcceptInput) {
  SampleWindow older(true);
  const InputBlock block;
  EXPECT_EQ(older.pressInEveryWay(), 0);
  {
    SampleWindow newer(true);
    EXPECT_EQ(newer.pressInEveryWay(), 4);
    EXPECT_EQ(older.pressInEveryWay(), 0);
  }
  EXPECT_EQ(older.pressInEveryWay(), 0);
}

}  // namespace
}  // namespace parlexo::test
