#pragma once

#include <QWidget>

#include "messaging/core/schedule.h"

class QLineEdit;

namespace parlexo {

/// When a send page's message goes out: shows the schedule and lets the user set it.
class DeliveryPanel final : public QWidget {
  Q_OBJECT

 public:
  explicit DeliveryPanel(QWidget* parent = nullptr);

  [[nodiscard]] const Schedule& schedule() const { return schedule_; }

  /// Back to sending at once; the value for the gateway stays, as it is not looked at then.
  void sendNow();

 private:
  void setDateTime();
  void showSchedule();

  Schedule schedule_;
  QLineEdit* text_ = nullptr;
};

}  // namespace parlexo
