// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

#include "messaging/core/schedule.h"
#include "messaging/core/send_calls.h"

class QLineEdit;

namespace parlexo {

class PictureButton;

/// How a send page's message goes out: shows its schedule and lets the user set it, and the sender ID that
/// all pages share.
class DeliveryPanel final : public QWidget {
  Q_OBJECT

 public:
  /// Offers to set the sender ID where the page's messages use it. `senderId` must outlive the panel.
  DeliveryPanel(QString& senderId, SenderIdUse use, QWidget* parent = nullptr);

  [[nodiscard]] const Schedule& schedule() const { return schedule_; }

  /// Back to sending at once; the value for the gateway stays, as it is not looked at then.
  void sendNow();

 private:
  [[nodiscard]] PictureButton* senderButton();
  void setDateTime();
  void setSenderId();
  void showSchedule();

  QString& senderId_;
  Schedule schedule_;
  QLineEdit* text_ = nullptr;
};

}  // namespace parlexo
