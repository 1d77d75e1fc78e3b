// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

#include "base/call_runner.h"

namespace parlexo {

/// Runs one task on a separate thread. A task that does not end is left behind with everything it
/// owns: a blocked name lookup cannot be interrupted.
class TaskThread {
 public:
  /// Starts `task`. `onEnd` is called when it has ended, also when it threw, on its thread; or at once on
  /// the calling thread when no thread could be started. The task polls `cancel`, which may be raised
  /// already.
  explicit TaskThread(CallRunner::Task task, std::function<void()> onEnd = {}, CancelFlag cancel = {});
  /// Cancels the task and waits up to 500 ms for its end, then leaves it behind. `onEnd` is not called
  /// after this has returned.
  ~TaskThread();
  TaskThread(const TaskThread&) = delete;
  TaskThread& operator=(const TaskThread&) = delete;

  void cancel() const { cancel_.raise(); }
  /// Cancels the task and leaves it behind without a wait.
  void leaveBehind();
  /// True when the task has ended within `limit`.
  [[nodiscard]] bool waitFor(std::chrono::milliseconds limit) const;
  [[nodiscard]] bool hasEnded() const { return waitFor(std::chrono::milliseconds::zero()); }
  /// Whether the task has ended without an exception.
  [[nodiscard]] bool hasSucceeded() const;

 private:
  class Shared;

  CancelFlag cancel_;
  std::shared_ptr<Shared> shared_;
  std::thread thread_;
};

}  // namespace parlexo
