// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "base/call_runner.h"

namespace parlexo {

/// A query that the user does not wait for.
struct BackgroundTask {
  /// Runs on another thread. Must own everything it uses, end soon after its cancel flag is raised, and be
  /// safe to run again.
  CallRunner::Task task;
  /// Called once on the interface thread after the task has ended, even if it threw.
  std::function<void()> deliver;
  /// Called on the interface thread before each run and before delivery; the task is dropped if it returns
  /// false. Checks that the receiver still exists and that the result still applies.
  std::function<bool()> isWanted;
};

/// Runs tasks one at a time in the order they were added, without a progress box and without blocking input.
/// Calls that the user waits for have priority: they pause the runner, and a task that overlaps with one is
/// cancelled and repeated afterwards, so its result is never older than the call. After three repeats a task
/// runs to completion alongside further calls; otherwise a busy user could block the queue indefinitely.
/// Interface thread only.
class BackgroundRunner {
 public:
  virtual ~BackgroundRunner() = default;

  /// Queues `task` and returns immediately.
  virtual void add(BackgroundTask task) = 0;

  /// Stops running tasks and delivering results until the matching resume(). Calls nest.
  virtual void pause() = 0;
  virtual void resume() = 0;

 protected:
  BackgroundRunner() = default;
  BackgroundRunner(const BackgroundRunner&) = default;
  BackgroundRunner& operator=(const BackgroundRunner&) = default;
};

}  // namespace parlexo
