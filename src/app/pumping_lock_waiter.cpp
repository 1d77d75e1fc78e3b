// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pumping_lock_waiter.h"

#include <QEventLoop>
#include <QTimer>

#include "ui/input_block.h"

namespace parlexo {

namespace {

constexpr qint64 stepsPerSecond = 2;

}  // namespace

PumpingLockWaiter::PumpingLockWaiter(Progress& progress, std::chrono::milliseconds step)
    : progress_(progress), step_(step) {
  clock_.start();
}

qint64 PumpingLockWaiter::nowSeconds() {
  return clock_.elapsed() / (step_.count() * stepsPerSecond);
}

void PumpingLockWaiter::pause() {
  if (!isWaiting_) showBox();
  // Input must not reach a page, which could use the waiting store.
  const InputBlock block;
  QEventLoop loop;
  QTimer::singleShot(step_, &loop, &QEventLoop::quit);
  loop.exec();
}

void PumpingLockWaiter::showBox() {
  const QString text = tr("Waiting for another user to finish with the contacts...");
  isWaiting_ = true;
  previousText_ = progress_.text();
  progress_.show(text);
  progress_.setText(text);
}

void PumpingLockWaiter::waitIsOver() {
  isWaiting_ = false;
  if (previousText_.isNull())
    progress_.hide();
  else
    progress_.setText(previousText_);
}

}  // namespace parlexo
