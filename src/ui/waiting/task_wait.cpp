// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/task_wait.h"

#include <utility>

#include <QAbstractEventDispatcher>
#include <QEventLoop>

#include "base/task_thread.h"
#include "ui/input_block.h"
#include "ui/waiting/progress_box.h"

namespace parlexo {

TaskWait::TaskWait(ProgressBox& progress, std::chrono::milliseconds untilBox,
                   std::chrono::milliseconds untilCancel, std::function<void()> onCancel)
    : progress_(progress), untilCancel_(untilCancel), onCancel_(std::move(onCancel)) {
  // Not only by the timer: of many short tasks under one box none may live to see it.
  if (progress_.isShowing()) offerCancelWhenDue();
  QObject::connect(&boxTimer_, &QTimer::timeout, &boxTimer_, [this] { look(); });
  graceTimer_.setSingleShot(true);
  QObject::connect(&graceTimer_, &QTimer::timeout, &graceTimer_, [this] { givenUp_ = true; });
  boxTimer_.start(untilBox);
}

TaskWait::~TaskWait() {
  boxTimer_.stop();
  if (showedBox_) progress_.hide();
}

bool TaskWait::run(CallRunner::Task task) {
  const InputBlock block(InputBlock::CloseRequests::Dropped);
  const auto wakeUp = [waiter = QAbstractEventDispatcher::instance()] { waiter->wakeUp(); };
  TaskThread thread(std::move(task), wakeUp, cancelFlag_);
  // Not exec(): a quit() of the application would end that while the worker still runs.
  QEventLoop loop;
  while (!thread.hasEnded() && !givenUp_) loop.processEvents(QEventLoop::WaitForMoreEvents);
  if (!thread.hasEnded()) thread.abandon();
  return thread.hasSucceeded();
}

void TaskWait::cancel(std::chrono::milliseconds grace) {
  cancelFlag_.raise();
  if (!graceTimer_.isActive()) graceTimer_.start(grace);
}

// Again and again: the box of a task inside this one may have come and gone meanwhile.
void TaskWait::look() {
  if (!progress_.isShowing()) showBox();
  offerCancelWhenDue();
}

void TaskWait::offerCancelWhenDue() {
  if (progress_.sinceFirstTask() >= progress_.untilCancel(untilCancel_)) progress_.offerCancel(onCancel_);
}

void TaskWait::showBox() {
  showedBox_ = true;
  progress_.show();
}

}  // namespace parlexo
