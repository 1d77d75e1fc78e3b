// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/screens/upgrade_dlg.h"

#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

QStringList visibleTexts(const CUpgradeDlg& dialog) {
  QStringList texts;
  for (const QLabel* label : dialog.findChildren<QLabel*>()) {
    if (label->isVisibleTo(&dialog)) texts << label->text();
  }
  return texts;
}

TEST(UpgradeDialog, showsTheNewVersionIfItIsKnown) {
  EXPECT_EQ(visibleTexts(CUpgradeDlg(QString())).size(), 2);
  EXPECT_EQ(visibleTexts(CUpgradeDlg(u"2.30%1"_s)).value(1), u"A new version 2.30%1 is now available!"_s);
}

TEST(UpgradeDialog, downloadOpensThePageAndCancelCloses) {
  std::vector<QUrl> opened;
  CUpgradeDlg dialog(u"2.30"_s, nullptr, [&](const QUrl& page) {
    opened.push_back(page);
    return true;
  });
  dialog.show();
  QTest::keyClick(&dialog, Qt::Key_Return);
  ASSERT_EQ(opened.size(), 1U);
  EXPECT_EQ(opened[0], QUrl(u"https://www.parlexo.example/messagingclient.php"_s));
  EXPECT_TRUE(dialog.isVisible());
  QTest::mouseClick(dialog.findChild<QWidget*>(u"cancel"_s), Qt::LeftButton);
  EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace parlexo::test
