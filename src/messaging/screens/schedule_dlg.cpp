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

// Qt sets no accessible names for these parts of its calendar. The object names are Qt's.
void setAccessibleNames(QCalendarWidget& calendar) {
  const std::pair<const char*, QString> parts[] = {
      {"qt_calendar_prevmonth", CScheduleDlg::tr("Previous month")},
      {"qt_calendar_nextmonth", CScheduleDlg::tr("Next month")},
      {"qt_calendar_yearedit", CScheduleDlg::tr("Year")},
      {"qt_calendar_calendarview", CScheduleDlg::tr("Days")},
  };
  for (const auto& [objectName, name] : parts)
    if (auto* part = calendar.findChild<QWidget*>(QLatin1String(objectName))) part->setAccessibleName(name);
}

}  // namespace

CScheduleDlg::CScheduleDlg(QWidget* parent, Clock clock) : GradientDialog(parent), clock_(std::move(clock)) {
  setObjectName(u"scheduleDialog"_s);
  setWindowTitle(tr("Parlexo(TM) : Schedule Messages"));
  createControls();
  createLayout();
  chooseCurrentTime();
  connect(calendar_, &QCalendarWidget::selectionChanged, this, &CScheduleDlg::applyChosenTime);
  connect(time_, &QTimeEdit::timeChanged, this, &CScheduleDlg::applyChosenTime);
  calendar_->setFocus(Qt::OtherFocusReason);
}

void CScheduleDlg::createControls() {
  calendar_ = new QCalendarWidget(this);
  calendar_->setObjectName(u"calendar"_s);
  calendar_->setAccessibleName(tr("Date:"));
  setAccessibleNames(*calendar_);
  // Receives the calendar's key events.
  calendar_->focusProxy()->installEventFilter(this);
  calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  QTextCharFormat weekendFormat;  // Qt's red is hard to read on the highlighted day
  weekendFormat.setForeground(look::text);
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
    calendar_->setWeekdayTextFormat(day, weekendFormat);
  time_ = new QTimeEdit(this);
  time_->setObjectName(u"timeEdit"_s);
  time_->setDisplayFormat(u"HH:mm:ss"_s);
  today_ = new PictureButton(tr("Today's Date/Time"), this);
  today_->setObjectName(u"todayButton"_s);
  connect(today_, &PictureButton::clicked, this, &CScheduleDlg::chooseCurrentTime);
  localField_ = readOnlyField(u"localField"_s, this);
  gmtField_ = readOnlyField(u"gmtField"_s, this);
  for (QLineEdit* field : {localField_, gmtField_})
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance(u"0000/00/00 00:00:00"_s) + 20);
}

void CScheduleDlg::createLayout() {
  auto* date = new QVBoxLayout;
  date->setSpacing(look::captionSpacing);
  date->addWidget(labelFor(calendar_, tr("&Date:")));
  date->addWidget(calendar_);
  date->addStretch(1);
  auto* choice = new QHBoxLayout;
  choice->setSpacing(look::choiceSpacing);
  choice->addLayout(date, 1);
  choice->addLayout(timeColumn());

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::dialogMargins);
  layout->setSpacing(look::rowSpacing);
  layout->addWidget(
      new QLabel(tr("You can schedule your messages to be sent at the given date and time:"), this));
  layout->addLayout(choice, 1);
  layout->addLayout(buttonRow());
}

QLayout* CScheduleDlg::timeColumn() {
  auto* fields = new QGroupBox(tr("Send message on:"), this);
  auto* rows = new QFormLayout(fields);
  rows->addRow(tr("&local time"), localField_);
  rows->addRow(tr("&GMT"), gmtField_);
  auto* column = new QVBoxLayout;
  column->setSpacing(look::captionSpacing);
  column->addWidget(labelFor(time_, tr("&Time:")));
  column->addWidget(time_);
  column->addWidget(today_);
  column->addSpacing(look::rowSpacing);
  column->addWidget(fields);
  column->addStretch(1);
  return column;
}

QLayout* CScheduleDlg::buttonRow() {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  auto* select = addButton(*row, u"selectButton"_s, tr("&Select Date/Time"));
  select->setDefault(true);
  connect(select, &PictureButton::clicked, this, &QDialog::accept);
  auto* cancel = addButton(*row, u"cancelButton"_s, tr("&Cancel"));
  connect(cancel, &PictureButton::clicked, this, &QDialog::reject);
  return row;
}

bool CScheduleDlg::eventFilter(QObject* target, QEvent* event) {
  const bool isKey = target == calendar_->focusProxy() && event->type() == QEvent::KeyPress;
  const int key = isKey ? static_cast<QKeyEvent*>(event)->key() : 0;
  // Queued, because the calendar has to commit a typed date first. Its activated() signal can't be used: some
  // styles also emit it for a click.
  if (key == Qt::Key_Return || key == Qt::Key_Enter)
    QMetaObject::invokeMethod(this, &CScheduleDlg::accept, Qt::QueuedConnection);
  return GradientDialog::eventFilter(target, event);
}

void CScheduleDlg::chooseCurrentTime() {
  // Shows this instant itself. Converted back from local time, it could be off by an hour in the night in
  // which the clocks go back.
  const QDateTime now = clock_().toLocalTime();
  const QSignalBlocker calendarBlocker(calendar_);
  const QSignalBlocker timeBlocker(time_);
  calendar_->setSelectedDate(now.date());
  time_->setTime(now.time());
  chosen_ = {calendar_->selectedDate(), time_->time()};
  showInstant(now);
}

void CScheduleDlg::applyChosenTime() {
  const std::pair choice(calendar_->selectedDate(), time_->time());
  // Enter in the time edit emits the signal again. That must not change the second instant of an ambiguous
  // local time to the first.
  if (choice == chosen_) return;
  chosen_ = choice;
  showInstant(fromLocalTime(choice.first, choice.second));
}

void CScheduleDlg::showInstant(const QDateTime& instant) {
  schedule_ = scheduleAt(instant);
  localField_->setText(schedule_.text);
  gmtField_->setText(schedule_.value);
}

}  // namespace parlexo
