// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include "tour/tour_plan.h"

class QWidget;

namespace parlexo {

/// Drives the program through a plan as a person would: by window titles, labels, buttons and keys.
/// It prints an account and leaves a picture of every step, so that somebody without a display, or a
/// machine, can see that the whole way works.
class Tour : public QObject {
  Q_OBJECT

 public:
  /// The pictures go into `folder`, which is created.
  Tour(std::vector<TourStep> steps, const QString& folder);

  /// Begins as soon as the event loop runs.
  void start();
  /// True when every step came about; until then, and when one failed, false.
  [[nodiscard]] bool succeeded() const { return !failed_ && next_ == steps_.size(); }

 private:
  void waitForWindow();
  void takeStep(QWidget* window);
  void fail(const QString& why);

  std::vector<TourStep> steps_;
  std::size_t next_ = 0;
  bool failed_ = false;
  QString folder_;
  QElapsedTimer waiting_;
};

}  // namespace parlexo
