#include "account/screens/news_dlg.h"

#include <QTest>
#include <QTextBrowser>
#include <gtest/gtest.h>

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

TEST(NewsDlg, showsMarkupAsTextAndOpensWebAddressesByKeyboard) {
  const QString news = u"<img src='file:///etc/hostname'> see https://a.example/x and javascript:alert(1)"_qs;
  CNewsDlg dialog(news);
  QList<QUrl> opened;
  dialog.setOpener([&opened](const QUrl& page) {
    opened << page;
    return true;
  });
  dialog.open();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  auto* text = dialog.findChild<QTextBrowser*>(u"news"_qs);
  EXPECT_EQ(text->toPlainText(), news);
  text->setFocus();
  QTest::keyClick(text, Qt::Key_Tab);
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(opened, QList<QUrl>({QUrl(u"https://a.example/x"_qs)}));
  EXPECT_TRUE(dialog.isVisible()) << "Enter followed the link";
  EXPECT_EQ(text->toPlainText(), news) << "the page is not loaded into the dialog";
  Q_EMIT text->anchorClicked(QUrl(u"file:///etc/passwd"_qs));
  EXPECT_EQ(opened.size(), 1);
  QTest::keyClick(dialog.findChild<QWidget*>(u"ok"_qs), Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace parlexo
