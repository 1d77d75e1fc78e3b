// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/screens/upgrade_dlg.h"

#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

TEST(UpgradeDialog, showsTheNewVersionIfItIsKnown) {
  for (const auto& [version, isShown] : Cases<QString, bool>{{QString(), false}, {u"2.30%1"_s, true}}) {
    CUpgradeDlg dialog(version);
    dialog.show();
    EXPECT_EQ(visibleTexts(dialog).filter(u"A new version "_s).size(), isShown ? 1 : 0);
    EXPECT_EQ(visibleTexts(dialog).contains(u"A new version 2.30%1 is now available!"_s), isShown);
  }
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
  click(dialog, "cancel");
  EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace parlexo::test
