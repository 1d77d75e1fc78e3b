// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/delivery_panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "messaging/screens/schedule_dlg.h"
#include "messaging/screens/sender_id_dlg.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int fieldMargins = 16;

}  // namespace

DeliveryPanel::DeliveryPanel(QString& senderId, SenderIdUse use, QWidget* parent)
    : QWidget(parent), senderId_(senderId) {
  setObjectName(u"deliveryPanel"_s);
  text_ = readOnlyField(u"scheduleText"_s, this);
  auto* dateTime = new PictureButton(u"Set Date/Time"_s, this);
  dateTime->setObjectName(u"setDateTimeButton"_s);
  connect(dateTime, &PictureButton::clicked, this, &DeliveryPanel::setDateTime);

  // The label stands above, so that a narrow window has room for the whole time.
  text_->setMinimumWidth(text_->fontMetrics().horizontalAdvance(u"0000/00/00 00:00:00"_s) + fieldMargins);
  auto* row = new QHBoxLayout;
  row->addWidget(text_, 1);
  row->addWidget(dateTime);
  if (use == SenderIdUse::Set) row->addWidget(senderButton());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(4);
  layout->addWidget(labelFor(text_, u"Sc&hedule messages to be sent at:"_s));
  layout->addLayout(row);
  showSchedule();
}

PictureButton* DeliveryPanel::senderButton() {
  auto* created = new PictureButton(u"Sender ID"_s, this);
  created->setObjectName(u"senderIdButton"_s);
  connect(created, &PictureButton::clicked, this, &DeliveryPanel::setSenderId);
  return created;
}

void DeliveryPanel::sendNow() {
  schedule_.text = Schedule::sendNow();
  showSchedule();
}

void DeliveryPanel::setDateTime() {
  CScheduleDlg dialog(this);
  if (dialog.exec() != QDialog::Accepted) return;
  schedule_ = dialog.schedule();
  showSchedule();
}

void DeliveryPanel::setSenderId() {
  CSenderIdDlg dialog(senderId_, this);
  if (dialog.exec() == QDialog::Accepted) senderId_ = dialog.senderId();
}

void DeliveryPanel::showSchedule() {
  text_->setText(schedule_.text);
  text_->setCursorPosition(0);  // a field too narrow for its text shows the beginning
}

}  // namespace parlexo
