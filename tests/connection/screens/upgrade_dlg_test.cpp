#include "connection/screens/upgrade_dlg.h"

#include <QLabel>
#include <QTest>
#include <gmock/gmock.h>

namespace parlexo {
namespace {

QStringList visibleTexts(const CUpgradeDlg& dialog) {
  QStringList texts;
  for (const QLabel* label : dialog.findChildren<QLabel*>()) {
    if (label->isVisibleTo(&dialog)) texts << label->text();
  }
  return texts;
}

TEST(UpgradeDialog, tellsTheNewVersionOnlyWhenItIsKnown) {
  EXPECT_EQ(visibleTexts(CUpgradeDlg(QString())).size(), 2);
  EXPECT_EQ(visibleTexts(CUpgradeDlg(QStringLiteral("2.30%1"))).value(1),
            QStringLiteral("A new version 2.30%1 is now available!"));
}

TEST(UpgradeDialog, downloadOpensThePageAndCancelCloses) {
  std::vector<QUrl> opened;
  CUpgradeDlg dialog(QStringLiteral("2.30"), nullptr, [&](const QUrl& page) {
    opened.push_back(page);
    return true;
  });
  dialog.show();
  QTest::keyClick(&dialog, Qt::Key_Return);
  ASSERT_EQ(opened.size(), 1U);
  EXPECT_EQ(opened[0], QUrl(QStringLiteral("https://www.parlexo.example/messagingclient.php")));
  EXPECT_TRUE(dialog.isVisible());
  QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("cancel")), Qt::LeftButton);
  EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace parlexo
