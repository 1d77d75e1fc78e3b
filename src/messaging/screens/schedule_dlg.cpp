// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/schedule_dlg.h"

#include <utility>

#include <QCalendarWidget>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTextCharFormat>
#include <QTimeEdit>
#include <QVBoxLayout>

#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// Qt leaves these parts of its calendar without a name; the object names are Qt's own.
void nameForAssistiveTools(QCalendarWidget& calendar) {
  const std::pair<const char*, QString> parts[] = {
      {"qt_calendar_prevmonth", u"Previous month"_s},
      {"qt_calendar_nextmonth", u"Next month"_s},
      {"qt_calendar_yearedit", u"Year"_s},
      {"qt_calendar_calendarview", u"Days"_s},
  };
  for (const auto& [objectName, name] : parts)
    if (auto* part = calendar.findChild<QWidget*>(QLatin1String(objectName))) part->setAccessibleName(name);
}

}  // namespace

CScheduleDlg::CScheduleDlg(QWidget* parent, Clock clock) : GradientDialog(parent), clock_(std::move(clock)) {
  setObjectName(u"scheduleDialog"_s);
  setWindowTitle(u"Parlexo(TM) : Schedule Messages"_s);
  createControls();
  createLayout();
  chooseCurrentTime();
  connect(calendar_, &QCalendarWidget::selectionChanged, this, &CScheduleDlg::takeChosenTime);
  connect(time_, &QTimeEdit::timeChanged, this, &CScheduleDlg::takeChosenTime);
  calendar_->setFocus(Qt::OtherFocusReason);
}

void CScheduleDlg::createControls() {
  calendar_ = new QCalendarWidget(this);
  calendar_->setObjectName(u"calendar"_s);
  calendar_->setAccessibleName(u"Date:"_s);
  nameForAssistiveTools(*calendar_);
  // It has the keyboard in the place of the calendar.
  calendar_->focusProxy()->installEventFilter(this);
  calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  QTextCharFormat likeOtherDays;  // any day will do, and red is hard to read on the highlighted one
  likeOtherDays.setForeground(look::text);
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
    calendar_->setWeekdayTextFormat(day, likeOtherDays);
  time_ = new QTimeEdit(this);
  time_->setObjectName(u"timeEdit"_s);
  time_->setDisplayFormat(u"HH:mm:ss"_s);
  today_ = new PictureButton(u"Today's Date/Time"_s, this);
  today_->setObjectName(u"todayButton"_s);
  connect(today_, &PictureButton::clicked, this, &CScheduleDlg::chooseCurrentTime);
  localField_ = readOnlyField(u"localField"_s, this);
  gmtField_ = readOnlyField(u"gmtField"_s, this);
  for (QLineEdit* field : {localField_, gmtField_})
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance(u"0000/00/00 00:00:00"_s) + 20);
}

void CScheduleDlg::createLayout() {
  auto* date = new QVBoxLayout;
  date->setSpacing(4);
  date->addWidget(labelFor(calendar_, u"&Date:"_s));
  date->addWidget(calendar_);
  date->addStretch(1);
  auto* choice = new QHBoxLayout;
  choice->setSpacing(16);
  choice->addLayout(date, 1);
  choice->addLayout(timeColumn());

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 14, 16, 14);
  layout->setSpacing(10);
  layout->addWidget(
      new QLabel(u"You can schedule your messages to be sent at the given date and time:"_s, this));
  layout->addLayout(choice, 1);
  layout->addLayout(buttonRow());
}

QLayout* CScheduleDlg::timeColumn() {
  auto* fields = new QGroupBox(u"Send message on:"_s, this);
  auto* rows = new QFormLayout(fields);
  rows->addRow(u"&local time"_s, localField_);
  rows->addRow(u"&GMT"_s, gmtField_);
  auto* column = new QVBoxLayout;
  column->setSpacing(4);
  column->addWidget(labelFor(time_, u"&Time:"_s));
  column->addWidget(time_);
  column->addWidget(today_);
  column->addSpacing(10);
  column->addWidget(fields);
  column->addStretch(1);
  return column;
}

QLayout* CScheduleDlg::buttonRow() {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  auto* select = addButton(*row, u"selectButton"_s, u"&Select Date/Time"_s);
  select->setDefault(true);
  connect(select, &PictureButton::clicked, this, &QDialog::accept);
  auto* cancel = addButton(*row, u"cancelButton"_s, u"&Cancel"_s);
  connect(cancel, &PictureButton::clicked, this, &QDialog::reject);
  return row;
}

bool CScheduleDlg::eventFilter(QObject* target, QEvent* event) {
  const bool isKey = target == calendar_->focusProxy() && event->type() == QEvent::KeyPress;
  const int key = isKey ? static_cast<QKeyEvent*>(event)->key() : 0;
  // Queued, because the calendar first takes over a date that was typed into it. Its own signal for Enter
  // also comes with a click under some styles.
  if (key == Qt::Key_Return || key == Qt::Key_Enter)
    QMetaObject::invokeMethod(this, &CScheduleDlg::accept, Qt::QueuedConnection);
  return GradientDialog::eventFilter(target, event);
}

void CScheduleDlg::chooseCurrentTime() {
  // The fields tell this very instant: reckoned back from the clocks' time, it could be an hour off in the
  // night in which the clocks are put back.
  const QDateTime now = clock_().toLocalTime();
  const QSignalBlocker calendarBlocker(calendar_);
  const QSignalBlocker timeBlocker(time_);
  calendar_->setSelectedDate(now.date());
  time_->setTime(now.time());
  chosen_ = {calendar_->selectedDate(), time_->time()};
  showInstant(now);
}

void CScheduleDlg::takeChosenTime() {
  const std::pair choice(calendar_->selectedDate(), time_->time());
  // Enter in the time makes it tell its time again, which must not turn the second of two equal times that
  // the clocks show into the first.
  if (choice == chosen_) return;
  chosen_ = choice;
  showInstant(instantOfLocalTime(choice.first, choice.second));
}

void CScheduleDlg::showInstant(const QDateTime& instant) {
  schedule_ = scheduleAt(instant);
  localField_->setText(schedule_.text);
  gmtField_->setText(schedule_.value);
}

}  // namespace parlexo
