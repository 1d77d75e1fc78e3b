// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

#include "messaging/core/message_traits.h"
#include "messaging/core/schedule.h"

class QLineEdit;

namespace parlexo {

class PictureButton;

/// Shows the schedule of a send page's message and lets the user set it, and the sender ID shared by all
/// pages.
class DeliveryPanel final : public QWidget {
  Q_OBJECT

 public:
  /// Has a button for the sender ID only if `use` is Set. `senderId` must outlive the panel.
  DeliveryPanel(QString& senderId, SenderIdUse use, QWidget* parent = nullptr);

  [[nodiscard]] const Schedule& schedule() const { return schedule_; }

  /// Resets the schedule to immediate delivery.
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
