// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

#include <QTimer>

#include "base/call_runner.h"

namespace parlexo {

class ProgressBox;

/// The interface thread's wait for one worker: runs events until the worker has ended or, after a cancel,
/// has been given up. Shows the progress box when the wait lasts and takes away what it showed.
class TaskWait {
 public:
  /// `onCancel` is called when the user presses the Cancel that the box offers after `untilCancel`; the box
  /// may outlive the wait, so what it refers to must outlive the box.
  TaskWait(ProgressBox& progress, std::chrono::milliseconds untilBox, std::chrono::milliseconds untilCancel,
           std::function<void()> onCancel);
  ~TaskWait();
  TaskWait(const TaskWait&) = delete;
  TaskWait& operator=(const TaskWait&) = delete;

  /// Runs `task` on a new thread and waits. True when it ended without an exception; false when it was
  /// given up, threw, or no thread could be started.
  [[nodiscard]] bool run(CallRunner::Task task);

  /// Raises the flag; the worker is given up when it has not ended `grace` later.
  void cancel(std::chrono::milliseconds grace);

 private:
  void look();
  void offerCancelWhenDue();
  void showBox();

  ProgressBox& progress_;
  std::chrono::milliseconds untilCancel_;
  std::function<void()> onCancel_;
  CancelFlag cancelFlag_;
  QTimer boxTimer_;
  QTimer graceTimer_;
  bool givenUp_ = false;
  bool showedBox_ = false;
};

}  // namespace parlexo
