// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

#include "base/call_runner.h"

namespace parlexo {

/// Runs one task on a separate thread. A task that does not end, for example because a name lookup blocks,
/// can be abandoned: its thread is detached and keeps everything that the task owns.
class TaskThread {
 public:
  /// Starts `task`. `onEnd` is called after it has ended, even if it threw, on the task's thread; if no
  /// thread could be started, it is called immediately on the calling thread. The task gets `cancel`, which
  /// may be raised already.
  explicit TaskThread(CallRunner::Task task, std::function<void()> onEnd = {}, CancelFlag cancel = {});
  /// Cancels the task, waits up to 500 ms for its end, then abandons it. `onEnd` is not called after the
  /// destructor returns.
  ~TaskThread();
  TaskThread(const TaskThread&) = delete;
  TaskThread& operator=(const TaskThread&) = delete;

  void cancel() const { cancel_.raise(); }
  /// Cancels the task and abandons it without waiting. `onEnd` is not called after this returns.
  void abandon();
  /// Blocks for up to `limit`. Returns true if the task has ended.
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
