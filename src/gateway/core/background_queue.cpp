#include "gateway/core/background_queue.h"

#include <utility>

#include "gateway/core/exchange_thread.h"

namespace parlexo {

ThreadBackgroundWorker::ThreadBackgroundWorker() = default;
ThreadBackgroundWorker::~ThreadBackgroundWorker() = default;

void ThreadBackgroundWorker::start(CallRunner::Exchange exchange, std::function<void()> onEnd) {
  // Destroying the thread object stops it from posting, destroying the receiver drops what was posted.
  const auto post = [this, onEnd = std::move(onEnd)] {
    QMetaObject::invokeMethod(&receiver_, onEnd, Qt::QueuedConnection);
  };
  thread_ = std::make_unique<ExchangeThread>(std::move(exchange), post);
}

void ThreadBackgroundWorker::cancel() {
  if (thread_) thread_->cancel();
}

BackgroundQueue::BackgroundQueue(std::unique_ptr<BackgroundWorker> worker,
                                 std::chrono::milliseconds untilResumed)
    : worker_(std::move(worker)) {
  resumption_.setSingleShot(true);
  resumption_.setInterval(untilResumed);
  QObject::connect(&resumption_, &QTimer::timeout, &resumption_, [this] { startNext(); });
}

void BackgroundQueue::add(BackgroundTask task) {
  tasks_.push_back(std::move(task));
  startNext();
}

void BackgroundQueue::pause() {
  ++pauses_;
  resumption_.stop();
  if (!isRunning_) return;
  isOverlapped_ = true;
  worker_->cancel();
}

void BackgroundQueue::resume() {
  if (--pauses_ == 0) resumption_.start();
}

void BackgroundQueue::startNext() {
  if (isRunning_ || pauses_ > 0 || resumption_.isActive()) return;
  while (!tasks_.empty() && !tasks_.front().isWanted()) tasks_.pop_front();
  if (tasks_.empty()) return;
  isRunning_ = true;
  isOverlapped_ = false;
  worker_->start(tasks_.front().exchange, [this] { finish(); });
}

void BackgroundQueue::finish() {
  isRunning_ = false;
  if (isOverlapped_) return startNext();
  const BackgroundTask task = std::move(tasks_.front());
  tasks_.pop_front();
  startNext();
  // Last, because it may open a dialog and return long after the next task has ended.
  if (task.isWanted()) task.deliver();
}

}  // namespace parlexo
