// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

#include <QDateTime>

#include "messaging/core/schedule.h"
#include "ui/gradient_page.h"

class QCalendarWidget;
class QLayout;
class QLineEdit;
class QTimeEdit;

namespace parlexo {

class PictureButton;

/// Lets the user choose the date and time at which messages are to be sent. Any date will do; the gateway
/// judges it.
class CScheduleDlg final : public GradientDialog {
  Q_OBJECT

 public:
  using Clock = std::function<QDateTime()>;

  /// Opens with the current time, as `clock` tells it.
  explicit CScheduleDlg(
      QWidget* parent = nullptr, Clock clock = [] { return QDateTime::currentDateTime(); });

  /// What the two fields show.
  [[nodiscard]] const Schedule& schedule() const { return schedule_; }

 protected:
  /// Enter in the calendar takes the date and closes the dialog.
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void createControls();
  void createLayout();
  [[nodiscard]] QLayout* timeColumn();
  [[nodiscard]] QLayout* buttonRow();
  void chooseCurrentTime();
  void takeChosenTime();
  void showInstant(const QDateTime& instant);

  Clock clock_;
  Schedule schedule_;
  std::pair<QDate, QTime> chosen_;  ///< what calendar and time showed when the fields were written
  QCalendarWidget* calendar_ = nullptr;
  QTimeEdit* time_ = nullptr;
  PictureButton* today_ = nullptr;
  QLineEdit* localField_ = nullptr;
  QLineEdit* gmtField_ = nullptr;
};

}  // namespace parlexo
