// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/delivery_panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "messaging/screens/schedule_dlg.h"
#include "messaging/screens/sender_id_dlg.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

DeliveryPanel::DeliveryPanel(QString& senderId, SenderIdUse use, QWidget* parent)
    : QWidget(parent), senderId_(senderId) {
  setObjectName(u"deliveryPanel"_s);
  text_ = readOnlyField(u"scheduleText"_s, this);
  auto* dateTime = new PictureButton(tr("Set Date/Time"), this);
  dateTime->setObjectName(u"setDateTimeButton"_s);
  connect(dateTime, &PictureButton::clicked, this, &DeliveryPanel::setDateTime);

  // The label is above the field, so the whole time fits in a narrow window.
  text_->setMinimumWidth(text_->fontMetrics().horizontalAdvance(u"0000/00/00 00:00:00"_s) +
                         look::fieldPadding);
  auto* row = new QHBoxLayout;
  row->addWidget(text_, 1);
  row->addWidget(dateTime);
  if (use == SenderIdUse::Set) row->addWidget(senderButton());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(look::captionSpacing);
  layout->addWidget(labelFor(text_, tr("Sc&hedule messages to be sent at:")));
  layout->addLayout(row);
  showSchedule();
}

PictureButton* DeliveryPanel::senderButton() {
  auto* created = new PictureButton(tr("Sender ID"), this);
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
  text_->setCursorPosition(0);  // shows the beginning if the field is too narrow
}

}  // namespace parlexo
