// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <vector>

#include "base/call_runner.h"
#include "base/timeouts.h"

namespace parlexo {

class TaskWait;
class ProgressBox;

/// Runs a task on a worker thread while the interface thread keeps painting. Input that comes
/// meanwhile is dropped; a progress box appears when the task lasts and none stands there yet. When it
/// goes on lasting, the box offers Cancel; a press also holds for later tasks under the same box.
class ThreadCallRunner final : public CallRunner {
 public:
  struct Timing {
    std::chrono::milliseconds untilBox = timeouts::untilBox;
    std::chrono::milliseconds untilCancel = timeouts::untilCancel;  ///< of tasks under one box
    std::chrono::milliseconds afterCancel = timeouts::afterCancel;  ///< until a worker is left behind
  };

  /// `progress` must outlive the runner.
  explicit ThreadCallRunner(ProgressBox& progress);
  ThreadCallRunner(ProgressBox& progress, Timing timing);

  /// To be called on the interface thread, also by what runs during another task. Returns false also
  /// when no thread could be started or the task threw.
  [[nodiscard]] bool run(Task task) override;

  /// Raises the cancel flag of every task under way; one that does not end in time is left behind.
  void cancel();

 private:
  ProgressBox& progress_;
  Timing timing_;
  std::vector<TaskWait*> waits_;
};

}  // namespace parlexo
