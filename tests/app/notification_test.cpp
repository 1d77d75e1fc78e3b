// SPDX-License-Identifier: GPL-3.0-or-later

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "app/notification_dlg.h"
#include "tests/support/widgets.h"
#include "ui/look.h"

namespace parlexo::test {
namespace {

struct NotificationTest : testing::Test {
  using Action = std::function<void(CNotificationDlg&)>;

  // Shows a message; `act` answers it once its window is active.
  MessageResult show(unsigned style, int number, const Action& act) {
    shown_ = false;
    QTimer::singleShot(0, &notifier_owner_, [this, act] {
      auto* dialog = qobject_cast<CNotificationDlg*>(QApplication::activeModalWidget());
      if (!dialog) return;
      shown_ = QTest::qWaitForWindowActive(dialog);
      act(*dialog);
    });
    return notifier_.show("First line\r\nSecond line", style, number);
  }

  static void press(CNotificationDlg& dialog, MessageResult result) {
    QTest::mouseClick(dialog.findChild<QAbstractButton*>(u"button%1"_s.arg(static_cast<int>(result))),
                      Qt::LeftButton);
  }

  QTemporaryDir folder_;
  Settings settings_{folder_.path()};
  NotificationNotifier notifier_{settings_};
  QObject notifier_owner_;
  bool shown_ = false;
};

constexpr auto Ok = MessageResult::Ok;
constexpr auto Cancel = MessageResult::Cancel;
constexpr auto Yes = MessageResult::Yes;
constexpr auto No = MessageResult::No;

TEST_F(NotificationTest, styleDecidesOnButtonsAndAnswers) {
  namespace style = message_style;
  using Results = std::vector<MessageResult>;
  const Cases<const char*, unsigned, Results, QStringList, MessageResult, MessageResult> cases = {
      {"OK", style::ok | style::stop, {Ok}, {"&OK"}, Ok, Ok},
      {"Yes and No", style::yesNo | style::question, {Yes, No}, {"&Yes", "&No"}, No, Ok},
      {"Yes, No and Cancel",
       style::yesNoCancel | style::exclamation,
       {Yes, No, Cancel},
       {"&Yes", "&No", "&Cancel"},
       Cancel,
       No},
      {"OK and Cancel", style::okCancel, {}, {}, Ok, No},
      {"Abort, Retry and Ignore", style::abortRetryIgnore | style::information, {}, {}, Ok, No},
  };
  settings_.suppressMessage(146);
  for (const auto& [what, bits, offered, labels, onEscape, whenSuppressed] : cases) {
    SCOPED_TRACE(what);
    for (const auto result : offered)
      EXPECT_EQ(show(bits, 0, [result](auto& dialog) { press(dialog, result); }), result);
    QStringList texts;
    const auto readAndEscape = [&texts](auto& dialog) {
      for (const auto* button : dialog.template findChildren<QAbstractButton*>())
        if (button->isVisible()) texts << button->text();
      QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    EXPECT_EQ(show(bits, 0, readAndEscape), onEscape);
    EXPECT_EQ(texts, labels);
    EXPECT_EQ(show(bits, 0, [](auto& dialog) { dialog.close(); }), onEscape);
    EXPECT_TRUE(shown_);
    EXPECT_EQ(show(bits, 146, [](auto& dialog) { dialog.close(); }), whenSuppressed);
    QCoreApplication::processEvents();
    EXPECT_FALSE(shown_) << "answered without a window";
  }
}

TEST_F(NotificationTest, tickedBoxSuppressesThatMessageOnly) {
  const auto tickAndClose = [](auto& dialog) {
    auto* box = dialog.template findChild<QCheckBox*>();
    EXPECT_TRUE(box->isVisible());
    box->setChecked(true);
    QTest::keyClick(&dialog, Qt::Key_Return);
  };
  EXPECT_EQ(show(message_style::information, 146, tickAndClose), Ok);
  EXPECT_TRUE(settings_.isMessageSuppressed(146));
  EXPECT_FALSE(settings_.isMessageSuppressed(147));
}

TEST_F(NotificationTest, messageThatCannotBeSuppressedHasNoCheckBox) {
  show(message_style::information, 0, [](auto& dialog) {
    EXPECT_FALSE(dialog.template findChild<QCheckBox*>()->isVisible());
    EXPECT_TRUE(dialog.template findChild<QAbstractButton*>("button1")->hasFocus());
    EXPECT_EQ(dialog.template findChild<QPlainTextEdit*>()->toPlainText(), "First line\nSecond line");
    dialog.close();
  });
  EXPECT_TRUE(shown_);
}

TEST_F(NotificationTest, longListScrollsAndIsCopiedByCtrlC) {
  QString list = "The following numbers failed:";
  for (int i = 0; i < 10'000; ++i) list += u"\n+61491%1"_s.arg(570000 + i);
  CNotificationDlg dialog(list, message_style::ok, false);
  showActive(dialog);
  EXPECT_LE(dialog.height(), dialogUnits(dialog, 218, 194).height());
  auto* message = dialog.findChild<QPlainTextEdit*>();
  EXPECT_GT(message->verticalScrollBar()->maximum(), 9'000);
  auto* ok = dialog.findChild<QAbstractButton*>("button1");

  const auto copied = [](QWidget* focus) {
    QGuiApplication::clipboard()->clear();
    focus->setFocus();
    QTest::keyClick(focus, Qt::Key_C, Qt::ControlModifier);
    return QGuiApplication::clipboard()->text();
  };
  EXPECT_EQ(copied(ok), list);
  EXPECT_EQ(copied(message), list);
  QTest::keyClick(message, Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(copied(message), "The following numbers failed:");
  EXPECT_EQ(copied(ok), "The following numbers failed:");
}

}  // namespace
}  // namespace parlexo::test
