// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/client/background_queue.h"

#include <utility>

#include <QScopeGuard>

#include "base/task_thread.h"

namespace parlexo {

namespace {
constexpr int maxRepeats = 3;
}

ThreadBackgroundWorker::ThreadBackgroundWorker() = default;
ThreadBackgroundWorker::~ThreadBackgroundWorker() = default;

void ThreadBackgroundWorker::start(CallRunner::Task task, std::function<void()> onEnd) {
  // Destroying the thread object stops it from posting; destroying the receiver discards posted events.
  const auto post = [this, onEnd = std::move(onEnd)] {
    QMetaObject::invokeMethod(&receiver_, onEnd, Qt::QueuedConnection);
  };
  thread_ = std::make_unique<TaskThread>(std::move(task), post);
}

void ThreadBackgroundWorker::cancel() {
  if (thread_) thread_->cancel();
}

BackgroundQueue::BackgroundQueue(std::unique_ptr<BackgroundWorker> worker,
                                 std::chrono::milliseconds untilResumed)
    : worker_(std::move(worker)) {
  resumption_.setSingleShot(true);
  resumption_.setInterval(untilResumed);
  QObject::connect(&resumption_, &QTimer::timeout, &resumption_, [this] { proceed(); });
}

void BackgroundQueue::add(BackgroundTask task) {
  tasks_.push_back(std::move(task));
  proceed();
}

void BackgroundQueue::pause() {
  ++pauses_;
  resumption_.stop();
  if (front_ != Front::Running || repeats_ == maxRepeats) return;
  ++repeats_;
  front_ = Front::Cancelled;
  worker_->cancel();
}

void BackgroundQueue::resume() {
  if (--pauses_ == 0) resumption_.start();
}

void BackgroundQueue::proceed() {
  if (pauses_ > 0 || resumption_.isActive()) return;
  if (front_ == Front::Waiting) startNext();
  if (front_ == Front::Ended) deliver();
}

void BackgroundQueue::startNext() {
  while (!tasks_.empty() && !tasks_.front().isWanted()) removeFront();
  if (tasks_.empty()) return;
  front_ = Front::Running;
  worker_->start(tasks_.front().task, [this] { finish(); });
}

void BackgroundQueue::finish() {
  front_ = front_ == Front::Cancelled ? Front::Waiting : Front::Ended;
  proceed();
}

void BackgroundQueue::deliver() {
  const BackgroundTask task = std::move(tasks_.front());
  removeFront();
  front_ = Front::Waiting;
  startNext();
  // Last, because it may open a dialog and return only after the next task has ended.
  if (task.isWanted()) task.deliver();
}

void BackgroundQueue::removeFront() {
  tasks_.pop_front();
  repeats_ = 0;
}

bool ForegroundRunner::run(Task task) {
  background_.pause();
  const auto resume = qScopeGuard([this] { background_.resume(); });
  return runner_.run(std::move(task));
}

}  // namespace parlexo
