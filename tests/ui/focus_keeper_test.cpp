// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/focus_keeper.h"

#include "tests/support/widgets.h"
#include "ui/gradient_page.h"

namespace parlexo::test {
namespace {

/// The main window, a dialog over it and a question over that.
struct FocusKeeperTest : testing::Test {
  FocusKeeperTest() {
    main_.show();
    for (GradientDialog* each : {dialog_.get(), question_.get()}) {
      each->setModal(true);
      showActive(*each);
    }
  }

  GradientPage main_;
  std::unique_ptr<GradientDialog> dialog_ = std::make_unique<GradientDialog>(&main_);
  std::unique_ptr<GradientDialog> question_ = std::make_unique<GradientDialog>(dialog_.get());
};

TEST_F(FocusKeeperTest, windowBelowIsActivatedWhenTwoCloseTogether) {
  const FocusKeeper keeper;
  question_.reset();
  dialog_.reset();
  QApplication::setActiveWindow(nullptr);
  EXPECT_TRUE(QTest::qWaitFor([this] { return main_.isActiveWindow(); }, 1000));
}

TEST_F(FocusKeeperTest, programInTheBackgroundStaysThere) {
  const FocusKeeper keeper;
  QTest::qWait(500);  // until the windows that have just opened no longer count
  QApplication::setActiveWindow(nullptr);
  question_->close();
  dialog_->close();
  QTest::qWait(500);
  EXPECT_EQ(QApplication::activeWindow(), nullptr);
}

}  // namespace
}  // namespace parlexo::test
