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

/// Runs one task at a time for a BackgroundQueue. Interface thread only.
class BackgroundWorker {
 public:
  virtual ~BackgroundWorker() = default;

  /// Starts `task`. Must not be called while another task is running. `onEnd` is called once on the interface
  /// thread, from the event loop, after the task has ended, unless the worker is destroyed first.
  virtual void start(CallRunner::Task task, std::function<void()> onEnd) = 0;
  /// Raises the cancel flag of the running task.
  virtual void cancel() = 0;

 protected:
  BackgroundWorker() = default;
  BackgroundWorker(const BackgroundWorker&) = default;
  BackgroundWorker& operator=(const BackgroundWorker&) = default;
};

/// Runs each task on a new thread. The destructor cancels the running task and waits up to 500 ms for its
/// end.
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

/// Implements order, priority and repetition of background tasks.
class BackgroundQueue final : public BackgroundRunner {
 public:
  /// `untilResumed` is the delay between the end of a user's call and the next task, because one user action
  /// is often a sequence of calls.
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
    Cancelled,  ///< running until it notices the cancel flag, then repeated
    Ended       ///< ready for delivery
  };

  void proceed();
  void startNext();
  void finish();
  void deliver();
  void removeFront();

  std::deque<BackgroundTask> tasks_;
  Front front_ = Front::Waiting;  ///< the state of the first task
  int repeats_ = 0;               ///< of the first task
  int pauses_ = 0;
  QTimer resumption_;
  std::unique_ptr<BackgroundWorker> worker_;
};

/// Runs calls that the user waits for and pauses background work meanwhile.
class ForegroundRunner final : public CallRunner {
 public:
  /// `runner` runs the calls. Both arguments must outlive this object.
  ForegroundRunner(CallRunner& runner, BackgroundRunner& background)
      : runner_(runner), background_(background) {}

  [[nodiscard]] bool run(Task task) override;

 private:
  CallRunner& runner_;
  BackgroundRunner& background_;
};

}  // namespace parlexo
