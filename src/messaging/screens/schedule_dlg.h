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

/// Lets the user choose the date and time at which messages are sent. Accepts any date; the gateway validates
/// it.
class CScheduleDlg final : public GradientDialog {
  Q_OBJECT

 public:
  using Clock = std::function<QDateTime()>;

  /// Opens with the current time of `clock`.
  explicit CScheduleDlg(
      QWidget* parent = nullptr, Clock clock = [] { return QDateTime::currentDateTime(); });

  /// The chosen schedule, as shown in the two fields.
  [[nodiscard]] const Schedule& schedule() const { return schedule_; }

 protected:
  /// Accepts the dialog when Enter is pressed in the calendar.
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void createControls();
  void createLayout();
  [[nodiscard]] QLayout* timeColumn();
  [[nodiscard]] QLayout* buttonRow();
  void chooseCurrentTime();
  void applyChosenTime();
  void showInstant(const QDateTime& instant);

  Clock clock_;
  Schedule schedule_;
  std::pair<QDate, QTime> chosen_;  ///< date and time for which the fields were last updated
  QCalendarWidget* calendar_ = nullptr;
  QTimeEdit* time_ = nullptr;
  PictureButton* today_ = nullptr;
  QLineEdit* localField_ = nullptr;
  QLineEdit* gmtField_ = nullptr;
};

}  // namespace parlexo
