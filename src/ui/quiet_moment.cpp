// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/quiet_moment.h"

#include <utility>

#include <QApplication>
#include <QEvent>

#include "ui/input_block.h"

namespace parlexo {

namespace {

constexpr std::chrono::milliseconds checkInterval{100};

bool isInput(const QEvent& event) {
  switch (int(event.type())) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
      return true;
    default:
      return false;
  }
}

}  // namespace

QuietMoment::QuietMoment(QWidget& window, std::chrono::milliseconds quietTime)
    : window_(window), quietTime_(quietTime) {
  connect(&timer_, &QTimer::timeout, this, &QuietMoment::check);
  qApp->installEventFilter(this);
}

void QuietMoment::await(std::function<void()> act) {
  act_ = std::move(act);
  timer_.start(0);
}

void QuietMoment::check() {
  timer_.setInterval(checkInterval);
  if (!isQuiet()) return;
  timer_.stop();
  // A local copy, because the action may run an event loop in which await() is called again.
  const auto act = std::exchange(act_, nullptr);
  act();
}

bool QuietMoment::isQuiet() const {
  const bool isInFront = window_.isActiveWindow() && !QApplication::activeModalWidget() &&
                         !QApplication::activePopupWidget() && !InputBlock::isBlocked(window_);
  const bool isIdle = !sinceInput_.isValid() || sinceInput_.hasExpired(quietTime_.count());
  return isInFront && isIdle && QApplication::mouseButtons() == Qt::NoButton;
}

bool QuietMoment::eventFilter(QObject*, QEvent* event) {
  if (isInput(*event)) sinceInput_.start();
  return false;
}

}  // namespace parlexo
