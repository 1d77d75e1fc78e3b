// SPDX-License-Identifier: GPL-3.0-or-later
#include <QListWidget>

#include "messaging/screens/load_template_dlg.h"
#include "messaging/screens/save_template_dlg.h"
#include "tests/messaging/sms_page_rig.h"
#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

TEST_F(SmsPage, templateRestoresTextAndRecipients) {
  press("saveTemplateButton");
  select({"Ann", "Lee, Bob"});
  choose("unicodeCharset");
  paste(QString::fromUtf8("\u4F60 \U0001F600"));
  inDialog<CSaveTemplateDlg>("saveTemplateButton", [](CSaveTemplateDlg& dialog) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible()) << "there is no name yet";
    QTest::keyClicks(dialog.focusWidget(), "Hi: 10?");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_THAT(notifier.popTexts(), ElementsAre("No SMS message has been provided. Enter a SMS message.",
                                               "Could not save your template!!", "Your template was saved."));
  EXPECT_EQ(templates.load("Hi: 10?")->message, "%%UNICODE%%4F600020D83DDE00");

  press("clearContactsButton");
  choose("standardCharset");
  editor().setPlainText(QString(760, QChar(u'x')));
  select({"Ann"});
  notifier.answers = {MessageResult::Yes};
  inDialog<CLoadTemplateDlg>("loadTemplateButton", [](CLoadTemplateDlg& dialog) {
    dialog.findChild<QListWidget*>()->setCurrentRow(0);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_THAT(notifier.popTexts(),
              ElementsAre("Are you sure you want to load the Template called: \"Hi: 10?\"?"));
  EXPECT_EQ(page.draft().charset, SmsCharset::Unicode);
  EXPECT_EQ(page.draft().text, QString::fromUtf8("\u4F60 \U0001F600"));
  EXPECT_EQ(page.draft().displayList, "Ann [+61491570156],Lee, Bob [+60312345678]");
  EXPECT_EQ(page.draft().numbersList, "+61491570156") << "a template leaves the numbers alone";
  EXPECT_EQ(counters(), "1/331");
  EXPECT_EQ(find<QLabel>("recipientCount").text(), "2 recipients shown, sending to the 1 selected before");
}

TEST_F(SmsPage, longTemplateSelectsTheStandardCharset) {
  const Cases<QString, SmsCharset, std::string> samples = {
      {QString(335, QChar(u'x')), SmsCharset::Unicode, "5/0"},
      {QString(336, QChar(u'x')), SmsCharset::Standard, "3/424"},
      {QString(100'000, QChar(u'x')), SmsCharset::Standard, "5/0"},
      {u"%%UNICODE%%004"_s, SmsCharset::Unicode, "1/321"},
      {u"%%UNICODE%%00480000"_s, SmsCharset::Unicode, "1/334"}};
  for (const auto& [text, charset, shown] : samples) {
    editor().clear();
    choose("unicodeCharset");
    ASSERT_TRUE(templates.save("t", {"", text}));
    notifier.answers = {MessageResult::Yes};
    inDialog<CLoadTemplateDlg>("loadTemplateButton", [](CLoadTemplateDlg& dialog) {
      dialog.findChild<QListWidget*>()->setCurrentRow(0);
      dialog.accept();
    });
    EXPECT_EQ(page.draft().charset, charset) << text.toStdString();
    EXPECT_EQ(counters(), shown) << text.toStdString();
    EXPECT_THAT(notifier.popTexts(), SizeIs(1));
  }
}

}  // namespace
}  // namespace parlexo::test
