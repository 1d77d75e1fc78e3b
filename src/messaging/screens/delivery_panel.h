#pragma once

#include <QString>
#include <QWidget>

#include "messaging/core/schedule.h"

class QLineEdit;

namespace parlexo {

/// How a send page's message goes out: shows its schedule and lets the user set it, and the sender ID that
/// all pages share.
class DeliveryPanel final : public QWidget {
  Q_OBJECT

 public:
  /// `senderId` must outlive the panel.
  explicit DeliveryPanel(QString& senderId, QWidget* parent = nullptr);

  [[nodiscard]] const Schedule& schedule() const { return schedule_; }

  /// Back to sending at once; the value for the gateway stays, as it is not looked at then.
  void sendNow();

 private:
  void setDateTime();
  void setSenderId();
  void showSchedule();

  QString& senderId_;
  Schedule schedule_;
  QLineEdit* text_ = nullptr;
};

}  // namespace parlexo
