// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/login_dlg.h"

#include "tests/app/run_fakes.h"
#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

struct LoginDlgTest : RunTest {
  void SetUp() override { ASSERT_TRUE(locate()); }

  LoginFlow flow{state, settings, gateway, notifier};
};

TEST_F(LoginDlgTest, refusedPasswordLeavesItOpenForAnotherAttempt) {
  CLoginDlg dialog(flow, u"demo"_s);
  showActive(dialog);
  auto* password = dialog.findChild<QLineEdit*>(u"password"_s);
  EXPECT_TRUE(password->hasFocus());
  EXPECT_EQ(password->echoMode(), QLineEdit::Password);

  QTest::keyClicks(password, u"wrong"_s);
  QTest::keyClick(password, Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(journal.size(), 1);
  EXPECT_EQ(password->selectedText().size(), 5);

  QTest::keyClicks(password, u"demo1234"_s);
  QTest::keyClick(password, Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(state.userName, u"demo"_s);
  password->undo();
  EXPECT_EQ(password->text(), QString()) << "wiped, and not to be had back";
}

TEST_F(LoginDlgTest, firstStartFocusesTheUserNameAndCanBeCancelled) {
  CLoginDlg dialog(flow, {});
  showActive(dialog);
  EXPECT_TRUE(dialog.findChild<QLineEdit*>(u"userName"_s)->hasFocus());
  EXPECT_EQ(dialog.windowTitle(), u"Parlexo(TM) : Login v2.24"_s);
  QTest::mouseClick(dialog.findChild<QAbstractButton*>(u"cancel"_s), Qt::LeftButton);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
  EXPECT_THAT(simulator.calledOperations(), ElementsAre(u"locator"_s));
}

}  // namespace
}  // namespace parlexo::test
