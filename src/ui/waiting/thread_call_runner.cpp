// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/thread_call_runner.h"

#include <utility>

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>

#include "base/task_thread.h"
#include "ui/input_block.h"
#include "ui/waiting/progress_box.h"

namespace parlexo {

/// Processes events on the user-interface thread until one worker has ended or is abandoned. Shows the
/// progress box if the wait takes long, and hides it again if it was opened here.
class ThreadCallRunner::Wait {
 public:
  explicit Wait(ThreadCallRunner& runner);
  ~Wait();
  Wait(const Wait&) = delete;
  Wait& operator=(const Wait&) = delete;

  /// Runs `task` on a new thread and waits for it. Returns false if it was abandoned, threw an exception or
  /// could not be started.
  [[nodiscard]] bool run(Task task);

  /// Sets the cancel flag; the worker is abandoned if it has not ended within Timing::afterCancel.
  void cancel();

 private:
  void updateBox();
  void offerCancelWhenDue();

  ThreadCallRunner& runner_;
  ProgressBox& progress_;
  CancelFlag cancelFlag_;
  QTimer boxTimer_;
  QTimer abandonTimer_;
  bool isAbandoned_ = false;
  bool hasShownBox_ = false;
};

ThreadCallRunner::Wait::Wait(ThreadCallRunner& runner) : runner_(runner), progress_(runner.progress_) {
  // The timer is not enough: with many short tasks under one box, none may last until it fires.
  if (progress_.isShowing()) offerCancelWhenDue();
  QObject::connect(&boxTimer_, &QTimer::timeout, &boxTimer_, [this] { updateBox(); });
  abandonTimer_.setSingleShot(true);
  QObject::connect(&abandonTimer_, &QTimer::timeout, &abandonTimer_, [this] { isAbandoned_ = true; });
  boxTimer_.start(runner.timing_.untilBox);
}

ThreadCallRunner::Wait::~Wait() {
  boxTimer_.stop();
  if (hasShownBox_) progress_.hide();
}

bool ThreadCallRunner::Wait::run(Task task) {
  const InputBlock block(InputBlock::CloseRequests::Dropped);
  const auto wakeUp = [dispatcher = QAbstractEventDispatcher::instance()] { dispatcher->wakeUp(); };
  TaskThread thread(std::move(task), wakeUp, cancelFlag_);
  // Not exec(), which QCoreApplication::quit() would end while the worker still runs.
  QEventLoop loop;
  while (!thread.hasEnded() && !isAbandoned_) loop.processEvents(QEventLoop::WaitForMoreEvents);
  if (!thread.hasEnded()) thread.abandon();
  return thread.hasSucceeded();
}

void ThreadCallRunner::Wait::cancel() {
  cancelFlag_.raise();
  if (!abandonTimer_.isActive()) abandonTimer_.start(runner_.timing_.afterCancel);
}

// Called repeatedly, because a nested task may have shown and hidden a box of its own in the meantime.
void ThreadCallRunner::Wait::updateBox() {
  if (!progress_.isShowing()) {
    hasShownBox_ = true;
    progress_.show();
  }
  offerCancelWhenDue();
}

// Refers to the runner and not to this wait, which the box may outlive.
void ThreadCallRunner::Wait::offerCancelWhenDue() {
  if (progress_.sinceFirstTask() < progress_.untilCancel(runner_.timing_.untilCancel)) return;
  progress_.offerCancel([runner = &runner_] { runner->cancel(); });
}

ThreadCallRunner::ThreadCallRunner(ProgressBox& progress) : ThreadCallRunner(progress, Timing()) {}

ThreadCallRunner::ThreadCallRunner(ProgressBox& progress, Timing timing)
    : progress_(progress), timing_(timing) {}

bool ThreadCallRunner::run(Task task) {
  Wait wait(*this);
  waits_.push_back(&wait);
  if (progress_.isCancelled()) wait.cancel();
  const bool hasSucceeded = wait.run(std::move(task));
  std::erase(waits_, &wait);
  return hasSucceeded;
}

void ThreadCallRunner::cancel() {
  for (Wait* wait : waits_) wait->cancel();
}

}  // namespace parlexo
