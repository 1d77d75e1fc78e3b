// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <memory>

#include <QObject>
#include <QTimer>

#include "base/background_runner.h"
#include "base/timeouts.h"

namespace parlexo {

class TaskThread;

/// Runs one task at a time for a BackgroundQueue. All functions belong to the interface thread.
class BackgroundWorker {
 public:
  virtual ~BackgroundWorker() = default;

  /// Starts `task`; there is none under way. `onEnd` is called once on the interface thread, from the
  /// event loop, after the task has ended, unless the worker is destroyed first.
  virtual void start(CallRunner::Task task, std::function<void()> onEnd) = 0;
  /// Raises the cancel flag of the task under way.
  virtual void cancel() = 0;

 protected:
  BackgroundWorker() = default;
  BackgroundWorker(const BackgroundWorker&) = default;
  BackgroundWorker& operator=(const BackgroundWorker&) = default;
};

/// Runs each task on a new thread. Its destructor cancels the one under way and waits at most 500 ms.
class ThreadBackgroundWorker final : public BackgroundWorker {
 public:
  ThreadBackgroundWorker();
  ~ThreadBackgroundWorker() override;

  void start(CallRunner::Task task, std::function<void()> onEnd) override;
  void cancel() override;

 private:
  QObject receiver_;
  std::unique_ptr<TaskThread> thread_;
};

/// The rules of background work: order, priority of the user's calls, unwanted results.
class BackgroundQueue final : public BackgroundRunner {
 public:
  /// `untilResumed` is the time between the end of a user's call and the next task, because one action of
  /// the user's is often several calls in a row.
  explicit BackgroundQueue(
      std::unique_ptr<BackgroundWorker> worker = std::make_unique<ThreadBackgroundWorker>(),
      std::chrono::milliseconds untilResumed = timeouts::untilBackground);

  void add(BackgroundTask task) override;
  void pause() override;
  void resume() override;

 private:
  enum class Front {
    Waiting,
    Running,
    Cancelled,  ///< running until it notices the cancel, to be repeated
    Ended       ///< to be delivered
  };
  struct Entry {
    BackgroundTask task;
    int repeats = 0;
  };

  void proceed();
  void startNext();
  void finish();
  void deliver();

  std::deque<Entry> entries_;
  Front front_ = Front::Waiting;  ///< where the front one of the entries is
  int pauses_ = 0;
  QTimer resumption_;
  std::unique_ptr<BackgroundWorker> worker_;
};

}  // namespace parlexo
