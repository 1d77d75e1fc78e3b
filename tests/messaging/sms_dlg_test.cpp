// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/sms_dlg.h"

#include <QCalendarWidget>
#include <QListView>

#include "addressbook/screens/select_contacts_dlg.h"
#include "messaging/screens/message_edit.h"
#include "messaging/screens/schedule_dlg.h"
#include "messaging/screens/sender_id_dlg.h"
#include "tests/messaging/sms_page_rig.h"
#include "tests/support/widgets.h"
#include "ui/hyperlink_label.h"

namespace parlexo::test {
namespace {

TEST_F(SmsPage, countersFollowEveryKeyAndCharacterSet) {
  EXPECT_EQ(counters(), "1/760");
  QTest::keyClicks(&editor(), "Hi ~");
  EXPECT_EQ(counters(), "1/755");
  choose("unicodeCharset");
  EXPECT_EQ(counters(), "1/331");
  choose("standardCharset");
  paste(QString(156, QChar(u'x')));
  EXPECT_EQ(counters(), "2/599");
  editor().undo();
  EXPECT_EQ(counters(), "1/755");
}

TEST_F(SmsPage, pasteStopsAtTheLimitAndKeepsTheTextAfterTheCursor) {
  editor().setPlainText("head tail");
  QTextCursor cursor = editor().textCursor();
  cursor.setPosition(5);
  editor().setTextCursor(cursor);
  paste(QString(100'000, QChar(u'x')));
  EXPECT_EQ(counters(), "5/0");
  EXPECT_EQ(editor().text(), "head " + QString(751, QChar(u'x')) + "tail");
  EXPECT_EQ(editor().textCursor().position(), 756);
  QTest::keyClicks(&editor(), "y");
  EXPECT_EQ(editor().length(), 760);
  EXPECT_FALSE(editor().text().contains(QChar(u'y')));
  editor().undo();
  EXPECT_EQ(editor().text(), "head tail");
  EXPECT_THAT(notifier.popTexts(), IsEmpty());
}

TEST_F(SmsPage, pastedZeroCharacterIsRemoved) {
  paste(u"one"_s + QChar(u'\0') + u"\r\ntwo"_s);
  EXPECT_EQ(page.draft().text, "one\ntwo");
  EXPECT_EQ(counters(), "1/753");
}

TEST_F(SmsPage, textThatIsTooLongForUnicodeIsReportedAndDropped) {
  paste(QString(335, QChar(u'x')));
  choose("unicodeCharset");
  EXPECT_EQ(counters(), "5/0");
  choose("standardCharset");
  paste(u"y"_s);
  choose("unicodeCharset");
  EXPECT_THAT(notifier.popTexts(),
              ElementsAre("You have entered too much text for messaging. Clearing text to send"));
  EXPECT_EQ(editor().text(), "");
  EXPECT_EQ(counters(), "1/335");
  paste(QString(334, QChar(u'x')) + QString::fromUtf8("\U0001F600"));
  EXPECT_EQ(counters(), "5/1");                 // half an emoji is not inserted
  editor().setText(QString(336, QChar(u'x')));  // as from a template
  EXPECT_THAT(notifier.popTexts(),
              ElementsAre("Unicode text is too long for message, we can not send this!"));
  EXPECT_EQ(counters(), "1/335");
}

TEST_F(SmsPage, selectionFillsTheBoxAndIsRestored) {
  select({"Ann", "Lee, Bob", "Local"});
  EXPECT_THAT(notifier.popTexts(),
              ElementsAre("The following Contacts had bad phone numbers and were removed:Local"));
  EXPECT_EQ(page.draft().displayList, "Ann [+61491570156],Lee, Bob [+60312345678]");
  EXPECT_EQ(page.draft().numbersList, "+61491570156,+60312345678");
  inSelection([](CSelectContactsDlg& dialog) {
    EXPECT_EQ(dialog.selection().size(), 2U);
    EXPECT_TRUE(dialog.selection().contains(u"Lee, Bob"_s));
    EXPECT_EQ(dialog.findChild<QAbstractItemView*>("contactList")->model()->rowCount(),
              3);  // Mute has no SMS
    dialog.reject();
  });
  EXPECT_EQ(page.draft().numbersList, "+61491570156,+60312345678");
}

TEST_F(SmsPage, givenContactsAreTickedInAddition) {
  select({"Ann"});
  atNextDialog<CSelectContactsDlg>([](CSelectContactsDlg& dialog) { dialog.accept(); });
  page.selectContacts({"Lee, Bob", "Mute", "nobody any more"});
  EXPECT_EQ(page.draft().displayList, "Ann [+61491570156],Lee, Bob [+60312345678]");
}

TEST_F(SmsPage, deleteAsksAndRemovesTheSelectedEntries) {
  select({"Ann", "Lee, Bob"});
  page.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  contactsBox().setFocus();
  QTest::keyClick(&contactsBox(), Qt::Key_Delete);
  contactsBox().selectionModel()->select(contactsBox().model()->index(0, 0), QItemSelectionModel::Select);
  notifier.answers = {MessageResult::No, MessageResult::Yes};
  QTest::keyClick(&contactsBox(), Qt::Key_Delete);
  EXPECT_EQ(page.draft().numbersList, "+61491570156,+60312345678");
  QTest::keyClick(&contactsBox(), Qt::Key_Delete);
  EXPECT_EQ(page.draft().displayList, "Lee, Bob [+60312345678]");
  EXPECT_EQ(page.draft().numbersList, "+60312345678");
  EXPECT_EQ(contactsBox().currentIndex().row(), 0) << "a long list stays at the place of the removal";
  EXPECT_FALSE(contactsBox().selectionModel()->hasSelection());
  EXPECT_THAT(notifier.popTexts(),
              ElementsAre("Can't delete the selected contacts as you have not selected one or more contacts",
                          "Are you sure you want to delete the selected contacts?",
                          "Are you sure you want to delete the selected contacts?"));
}

TEST_F(SmsPage, successfulSendClearsTheTextAndKeepsTheOptions) {
  QSignalSpy sent(&page, &CQuillonSMSDlg::messageSent);
  select({"Ann"});
  choose("unicodeCharset");
  choose("flashType");
  QTest::keyClicks(&editor(), "Hi");
  press("sendButton");
  ASSERT_THAT(sent, SizeIs(1));
  EXPECT_EQ(sent.at(0).at(0).value<MessageType>(), MessageType::Sms);
  const simulator::AcceptedMessage message = simulator.messages().at(0);
  EXPECT_EQ(message.rawText.toStdString(), "%%UNICODE%%00480069");
  EXPECT_TRUE(message.flash);
  const SmsDraft after = page.draft();
  EXPECT_EQ(after.text, "");
  EXPECT_EQ(after.displayList, "");
  EXPECT_EQ(after.numbersList, "+61491570156");
  EXPECT_EQ(after.charset, SmsCharset::Unicode);
  EXPECT_TRUE(after.flash);
  EXPECT_EQ(counters(), "1/335");
}

TEST_F(SmsPage, aRefusedTextGetsTheFocus) {
  press("sendButton");
  EXPECT_TRUE(editor().hasFocus());
}

TEST_F(SmsPage, outcomeUnknownNoticeStaysUntilTheNextReply) {
  const auto& notice = find<QLabel>("outcomeUnknownNotice");
  select({"Ann"});
  QTest::keyClicks(&editor(), "Hi");
  EXPECT_FALSE(notice.isVisible());
  setFault(simulator::FaultKind::Close, u"sendSms"_s);
  press("sendButton");
  EXPECT_TRUE(notice.isVisible());
  EXPECT_THAT(notifier.popTexts(), ElementsAre(unreachable));
  EXPECT_EQ(page.draft().text, "Hi");
  EXPECT_EQ(page.draft().displayList, "Ann [+61491570156]");
  simulator.clearFaults();
  state.balanceIsZero = true;
  press("sendButton");
  EXPECT_TRUE(notice.isVisible()) << "nothing was sent";
  state.balanceIsZero = false;
  press("sendButton");
  EXPECT_FALSE(notice.isVisible());
  EXPECT_THAT(simulator.messages(), SizeIs(2));
}

TEST_F(SmsPage, aSecondSendWhileOneRunsIsDropped) {
  select({"Ann"});
  QTest::keyClicks(&editor(), "Hi");
  notifier.onShow = [this] { press("sendButton"); };
  press("sendButton");
  EXPECT_THAT(simulator.messages(), SizeIs(1));
}

TEST_F(SmsPage, scheduleAppliesToTheNextMessageOnly) {
  select({"Ann"});
  QTest::keyClicks(&editor(), "Hi");
  const auto& shown = find<QLineEdit>("scheduleText");
  EXPECT_EQ(shown.text(), "Send Message Now");
  Schedule chosen;
  inDialog<CScheduleDlg>("setDateTimeButton", [&chosen](CScheduleDlg& dialog) {
    auto& calendar = *dialog.findChild<QCalendarWidget*>();
    calendar.setSelectedDate(calendar.selectedDate().addDays(2));
    chosen = dialog.schedule();
    dialog.accept();
  });
  EXPECT_EQ(shown.text(), chosen.text);
  inDialog<CScheduleDlg>("setDateTimeButton", [](CScheduleDlg& dialog) { dialog.reject(); });
  EXPECT_EQ(page.draft().schedule.value, chosen.value);
  press("sendButton");
  EXPECT_EQ(simulator.messages().at(0).schedule->toString("yyyy/MM/dd HH:mm:ss"), chosen.value);
  EXPECT_EQ(shown.text(), "Send Message Now");
  EXPECT_TRUE(page.draft().schedule.isNow());
}

TEST_F(SmsPage, senderIdAppliesToAllMessages) {
  inDialog<CSenderIdDlg>("senderIdButton", [](CSenderIdDlg& dialog) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>(), "+61491570999");
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
  });
  EXPECT_THAT(operations(), IsEmpty());
  inDialog<CSenderIdDlg>("senderIdButton", [](CSenderIdDlg& dialog) {
    auto& edit = *dialog.findChild<QLineEdit*>();
    EXPECT_EQ(edit.text(), "+61491570999");
    edit.clear();
    click(dialog, "closeButton");
  });
  for (const char* text : {"one", "two"}) {
    select({"Ann"});
    QTest::keyClicks(&editor(), text);
    press("sendButton");
    EXPECT_EQ(simulator.messages().back().senderId, "+61491570999") << text;
  }
}

TEST_F(SmsPage, hintsShowThePartAndUnsendableCharacters) {
  const auto& part = find<QLabel>("messagePart");
  const auto& lacking = find<QLabel>("unsendableCharacters");
  auto& toUnicode = find<HyperlinkLabel>("switchToUnicode");
  paste(QString(200, QChar(u'x')));
  EXPECT_EQ(part.text(), "Cursor in part 2 of 2");
  editor().moveCursor(QTextCursor::Start);
  EXPECT_EQ(part.text(), "Cursor in part 1 of 2");
  EXPECT_FALSE(toUnicode.isVisible());
  paste(QString::fromUtf8("\u4F60\u597D"));
  EXPECT_EQ(lacking.text(), QString::fromUtf8("Will be sent as \"?\":  \u4F60  \u597D"));
  paste(QString(134, QChar(u'y')));
  EXPECT_FALSE(toUnicode.isVisible()) << "336 characters are one too many";
  editor().undo();
  ASSERT_TRUE(toUnicode.isVisible());
  QTest::mouseClick(&toUnicode, Qt::LeftButton);
  EXPECT_EQ(page.draft().charset, SmsCharset::Unicode);
  EXPECT_EQ(lacking.text(), "");
  EXPECT_EQ(counters(), "4/133");
  EXPECT_THAT(notifier.popTexts(), IsEmpty());
}

TEST_F(SmsPage, repeatedRecipientsCanBeRemoved) {
  book.addContact("Ann at work", "+61491570156", "Y");
  const auto& count = find<QLabel>("recipientCount");
  auto& repeats = find<HyperlinkLabel>("removeRepeats");
  EXPECT_EQ(count.text(), "No recipients");
  select({"Ann", "Lee, Bob", "Ann at work"});
  EXPECT_EQ(count.text(), "3 recipients, 1 number occurs more than once");
  ASSERT_TRUE(repeats.isVisible());
  const int listHeight = contactsBox().height();
  press("clearContactsButton");
  EXPECT_EQ(count.text(), "No recipients");
  EXPECT_FALSE(repeats.isVisible());
  QCoreApplication::processEvents();
  EXPECT_EQ(contactsBox().height(), listHeight) << "the list does not move with the link";
  select({"Ann", "Lee, Bob", "Ann at work"});
  QTest::mouseClick(&repeats, Qt::LeftButton);
  EXPECT_THAT(notifier.popTexts(), IsEmpty());
  EXPECT_EQ(page.draft().displayList, "Ann [+61491570156],Lee, Bob [+60312345678]");
  EXPECT_EQ(page.draft().numbersList, "+61491570156,+60312345678");
  EXPECT_EQ(count.text(), "2 recipients");
  EXPECT_FALSE(repeats.isVisible());
}

TEST_F(SmsPage, tabKeyFollowsTheReadingOrder) {
  editor().setFocus();
  QStringList names;
  for (int i = 0; i < 14; ++i) {
    names << page.focusWidget()->objectName();
    QTest::keyClick(page.focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(names, QStringList({"messageEdit", "standardCharset", "standardType", "loadTemplateButton",
                                "saveTemplateButton", "templatesTipButton", "contactsBox",
                                "addContactsButton", "selectContactsButton", "clearContactsButton",
                                "scheduleText", "setDateTimeButton", "senderIdButton", "getStatusButton"}));
}

TEST_F(SmsPage, buttonsAskForStatusAndExplainTemplates) {
  QSignalSpy requested(&page, &CQuillonSMSDlg::statusRequested);
  press("getStatusButton");
  EXPECT_EQ(requested.at(0).at(0).value<MessageType>(), MessageType::Sms);
  press("templatesTipButton");
  EXPECT_EQ(notifier.shown.back().style, message_style::information);
}

}  // namespace
}  // namespace parlexo::test
