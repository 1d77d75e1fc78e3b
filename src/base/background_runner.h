// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "base/call_runner.h"

namespace parlexo {

/// A query that the user does not wait for.
struct BackgroundTask {
  /// Does the work, on another thread. Must own everything it uses, should end soon after its cancel flag is
  /// raised, and must be safe to repeat.
  CallRunner::Task task;
  /// Called once on the interface thread after the task has ended, also when it threw.
  std::function<void()> deliver;
  /// Asked on the interface thread before each run and before delivery; the task is dropped when it returns
  /// false. Checks that the receiver still exists and that the result still applies.
  std::function<bool()> isWanted;
};

/// Runs tasks one at a time, in the order in which they were added, without a progress box and without
/// blocking input. Calls that the user waits for have priority: they pause the runner, and a task that
/// overlaps with one is cancelled and repeated afterwards, so that its result is not older than the call. A
/// task that has been repeated three times runs to its end beside further calls instead: a busy user must
/// not hold up the queue for ever. All functions belong to the interface thread.
class BackgroundRunner {
 public:
  virtual ~BackgroundRunner() = default;

  /// Queues `task` and returns at once.
  virtual void add(BackgroundTask task) = 0;

  /// Until the matching resume(), no task runs and no result is delivered. Calls nest.
  virtual void pause() = 0;
  virtual void resume() = 0;

 protected:
  BackgroundRunner() = default;
  BackgroundRunner(const BackgroundRunner&) = default;
  BackgroundRunner& operator=(const BackgroundRunner&) = default;
};

}  // namespace parlexo
