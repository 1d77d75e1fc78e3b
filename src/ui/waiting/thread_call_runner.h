// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <vector>

#include "base/call_runner.h"
#include "base/timeouts.h"

namespace parlexo {

class ProgressBox;

/// Runs a task on a worker thread while the user interface keeps painting. User input is discarded during
/// the task. If the task takes long, a progress box appears unless one is already showing; later the box
/// offers Cancel, which also cancels further tasks under the same box.
class ThreadCallRunner final : public CallRunner {
 public:
  struct Timing {
    std::chrono::milliseconds untilBox = timeouts::untilBox;
    std::chrono::milliseconds untilCancel = timeouts::untilCancel;  ///< summed over the tasks under one box
    std::chrono::milliseconds afterCancel = timeouts::afterCancel;  ///< until the worker is abandoned
  };

  /// `progress` must outlive the runner.
  explicit ThreadCallRunner(ProgressBox& progress);
  ThreadCallRunner(ProgressBox& progress, Timing timing);

  /// Must be called on the user-interface thread; calls may nest. Also returns false if the thread could not
  /// be started or the task threw an exception.
  [[nodiscard]] bool run(Task task) override;

  /// Sets the cancel flag of every running task. Tasks that do not end in time are abandoned.
  void cancel();

 private:
  class Wait;

  ProgressBox& progress_;
  Timing timing_;
  std::vector<Wait*> waits_;
};

}  // namespace parlexo
