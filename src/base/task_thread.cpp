// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/task_thread.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <utility>

#include <QtGlobal>

#include "base/timeouts.h"

namespace parlexo {

namespace {

bool runCatching(const CallRunner::Task& task, const CancelFlag& cancel) {
  try {
    task(cancel);
    return true;
  } catch (const std::exception& error) {
    qWarning("A task failed: %s", error.what());
  } catch (...) {
    qWarning("A task failed.");
  }
  return false;
}

}  // namespace

/// Owned by both threads, so it outlives an abandoned task.
class TaskThread::Shared {
 public:
  explicit Shared(std::function<void()> onEnd) : onEnd_(std::move(onEnd)) {}

  void end(bool succeeded) {
    const std::scoped_lock lock(mutex_);
    hasEnded_ = true;
    hasSucceeded_ = succeeded;
    ended_.notify_all();
    // Called under the lock to make detach() wait for the callback.
    if (onEnd_) onEnd_();
  }

  [[nodiscard]] bool waitFor(std::chrono::milliseconds limit) {
    std::unique_lock lock(mutex_);
    return ended_.wait_for(lock, limit, [this] { return hasEnded_; });
  }

  [[nodiscard]] bool hasSucceeded() {
    const std::scoped_lock lock(mutex_);
    return hasSucceeded_;
  }

  void detach() {
    const std::scoped_lock lock(mutex_);
    onEnd_ = nullptr;
  }

 private:
  std::mutex mutex_;
  std::condition_variable ended_;
  std::function<void()> onEnd_;
  bool hasEnded_ = false;
  bool hasSucceeded_ = false;
};

TaskThread::TaskThread(CallRunner::Task task, std::function<void()> onEnd, CancelFlag cancel)
    : cancel_(std::move(cancel)), shared_(std::make_shared<Shared>(std::move(onEnd))) {
  try {
    thread_ = std::thread([shared = shared_, cancel = cancel_, work = std::move(task)]() mutable {
      const bool succeeded = runCatching(work, cancel);
      work = nullptr;  // destroy what the task owns before its end is reported
      shared->end(succeeded);
    });
  } catch (const std::system_error& error) {
    qWarning("No thread for a task: %s", error.what());
    shared_->end(false);
  }
}

TaskThread::~TaskThread() {
  cancel();
  shared_->detach();
  if (!thread_.joinable()) return;
  if (waitFor(timeouts::untilAbandoned))
    thread_.join();
  else
    thread_.detach();
}

void TaskThread::abandon() {
  cancel();
  shared_->detach();
  if (thread_.joinable()) thread_.detach();
}

bool TaskThread::waitFor(std::chrono::milliseconds limit) const {
  return shared_->waitFor(limit);
}

bool TaskThread::hasSucceeded() const {
  return shared_->hasSucceeded();
}

}  // namespace parlexo
