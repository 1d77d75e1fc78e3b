#include "gateway/boxes/exchange_wait.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include <QAbstractEventDispatcher>
#include <QEventLoop>

#include "gateway/boxes/progress_box.h"
#include "ui/input_block.h"

namespace parlexo {

/// What worker and interface thread share. Each keeps it alive, so that a worker left behind never touches
/// what the interface thread has already given back.
class ExchangeWait::Worker {
 public:
  explicit Worker(CallRunner::Exchange exchange) : exchange_(std::move(exchange)) {}

  void work(const CancelFlag& cancel) {
    bool succeeded = false;
    try {
      exchange_(cancel);
      succeeded = true;
    } catch (const std::exception& error) {
      qWarning("An exchange failed: %s", error.what());
    } catch (...) {
      qWarning("An exchange failed.");
    }
    exchange_ = nullptr;
    finish(succeeded);
  }

  [[nodiscard]] bool hasEnded() const { return ended_; }
  [[nodiscard]] bool hasSucceeded() const { return ended_ && succeeded_; }

  /// From here on the worker wakes nobody.
  void leaveBehind() {
    const std::scoped_lock lock(mutex_);
    waiter_ = nullptr;
  }

 private:
  void finish(bool succeeded) {
    const std::scoped_lock lock(mutex_);
    succeeded_ = succeeded;
    ended_ = true;
    if (waiter_) waiter_->wakeUp();
  }

  CallRunner::Exchange exchange_;
  std::mutex mutex_;
  QAbstractEventDispatcher* waiter_ = QAbstractEventDispatcher::instance();
  bool succeeded_ = false;
  std::atomic<bool> ended_ = false;
};

ExchangeWait::ExchangeWait(ProgressBox& progress, std::chrono::milliseconds untilBox,
                           std::chrono::milliseconds untilCancel, std::function<void()> onCancel)
    : progress_(progress), untilCancel_(untilCancel), onCancel_(std::move(onCancel)) {
  // Not only by the timer: of many short exchanges under one box none may live to see it.
  if (progress_.isShowing()) offerCancelWhenDue();
  QObject::connect(&boxTimer_, &QTimer::timeout, &boxTimer_, [this] { look(); });
  graceTimer_.setSingleShot(true);
  QObject::connect(&graceTimer_, &QTimer::timeout, &graceTimer_, [this] { givenUp_ = true; });
  boxTimer_.start(untilBox);
}

ExchangeWait::~ExchangeWait() {
  boxTimer_.stop();
  if (showedBox_) progress_.hide();
}

bool ExchangeWait::run(CallRunner::Exchange exchange) {
  const InputBlock block(InputBlock::CloseRequests::Dropped);
  worker_ = std::make_shared<Worker>(std::move(exchange));
  std::thread thread;
  try {
    thread = std::thread([worker = worker_, cancel = cancelFlag_] { worker->work(cancel); });
  } catch (const std::system_error& error) {
    qWarning("No thread for an exchange: %s", error.what());
    return false;
  }
  // Not exec(): a quit() of the application would end that while the worker still runs.
  QEventLoop loop;
  while (!worker_->hasEnded() && !givenUp_) loop.processEvents(QEventLoop::WaitForMoreEvents);
  if (worker_->hasEnded()) {
    thread.join();
  } else {
    worker_->leaveBehind();
    thread.detach();
  }
  return worker_->hasSucceeded();
}

void ExchangeWait::cancel(std::chrono::milliseconds grace) {
  cancelFlag_.raise();
  if (!graceTimer_.isActive()) graceTimer_.start(grace);
}

// Again and again: the box of an exchange inside this one may have come and gone meanwhile.
void ExchangeWait::look() {
  if (!progress_.isShowing()) showBox();
  offerCancelWhenDue();
}

void ExchangeWait::offerCancelWhenDue() {
  if (progress_.sinceFirstExchange() >= progress_.untilCancel(untilCancel_)) progress_.offerCancel(onCancel_);
}

void ExchangeWait::showBox() {
  showedBox_ = true;
  progress_.show();
}

}  // namespace parlexo
