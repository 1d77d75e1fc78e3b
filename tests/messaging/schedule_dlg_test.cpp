// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/schedule_dlg.h"

#include <QAccessible>
#include <QCalendarWidget>
#include <QTimeEdit>

#include "tests/messaging/time_zone_scope.h"
#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

QDateTime gmt(const char* text) {
  QDateTime time = QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate);
  time.setTimeSpec(Qt::UTC);
  return time;
}

/// The dialog in Berlin at the second 02:30 of the night in which the clocks go back.
struct ScheduleDialog : testing::Test {
  ScheduleDialog() { showActive(dialog); }

  std::string fields() {
    return (child<QLineEdit>(dialog, "localField").text() + " = " +
            child<QLineEdit>(dialog, "gmtField").text())
        .toStdString();
  }
  TimeZoneScope zone{"Europe/Berlin"};
  QDateTime now = gmt("2026-10-25T01:30:15");
  CScheduleDlg dialog{nullptr, [this] { return now; }};
  QCalendarWidget& calendar = *dialog.findChild<QCalendarWidget*>("calendar");
  QTimeEdit& time = *dialog.findChild<QTimeEdit*>("timeEdit");
};

TEST_F(ScheduleDialog, fieldsShowTheChosenTime) {
  QTest::keyClick(calendar.focusWidget(), Qt::Key_Right);
  EXPECT_EQ(fields(), "2026/10/26 02:30:15 = 2026/10/26 01:30:15");
  QTest::keyClick(calendar.focusWidget(), Qt::Key_Left);
  EXPECT_EQ(fields(), "2026/10/25 02:30:15 = 2026/10/25 00:30:15") << "the first of the two";
  time.setFocus();
  time.setSelectedSection(QDateTimeEdit::HourSection);
  QTest::keyClick(&time, Qt::Key_Up);
  EXPECT_EQ(fields(), "2026/10/25 03:30:15 = 2026/10/25 02:30:15");
  now = gmt("2026-03-28T23:30:00");
  click(dialog, "todayButton");
  EXPECT_EQ(fields(), "2026/03/29 00:30:00 = 2026/03/28 23:30:00");
  time.setTime({2, 30});
  EXPECT_EQ(fields(), "2026/03/29 03:30:00 = 2026/03/29 01:30:00") << "02:30 does not exist";
  EXPECT_EQ(time.time(), QTime(2, 30)) << "what is being typed is left alone";
  calendar.setSelectedDate({2199, 7, 1});
  EXPECT_EQ(fields(), "2199/07/01 02:30:00 = 2199/07/01 00:30:00");
}

TEST_F(ScheduleDialog, enterInTheCalendarAcceptsTheDate) {
  const auto accepted = [this](std::initializer_list<Qt::Key> keys) {
    dialog.setResult(QDialog::Rejected);
    dialog.show();
    for (const auto key : keys) QTest::keyClick(calendar.focusProxy(), key);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog.isVisible(); }, 1000));
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    return dialog.schedule().text.left(10);
  };
  EXPECT_EQ(accepted({Qt::Key_Right, Qt::Key_Return}), "2026/10/26");
  EXPECT_EQ(accepted({Qt::Key_0, Qt::Key_7, Qt::Key_Enter}), "2026/10/07");
}

TEST_F(ScheduleDialog, everyButtonAndTableHasAnAccessibleName) {
  for (auto* part : dialog.findChildren<QWidget*>()) {
    const QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(part);
    const bool isOther = seen->role() != QAccessible::Button && seen->role() != QAccessible::Table;
    EXPECT_TRUE(isOther || part->isHidden() || !seen->text(QAccessible::Name).isEmpty())
        << part->objectName().toStdString();
  }
}

TEST_F(ScheduleDialog, enterSelectsAndEscapeCancels) {
  QTest::keyClick(&time, Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.schedule().text, "2026/10/25 02:30:15");
  EXPECT_EQ(dialog.schedule().value, "2026/10/25 01:30:15");
  dialog.show();
  QTest::keyClick(&time, Qt::Key_Escape);
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace parlexo::test
