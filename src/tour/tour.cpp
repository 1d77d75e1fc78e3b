// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/tour.h"

#include <cstdio>
#include <utility>

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "tour/window_driver.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int pollInterval = 50;         // ms between two checks for the next window
constexpr int settleTime = 300;          // ms for a window to finish painting before its screenshot
constexpr qint64 windowTimeout = 60000;  // ms to wait for a window

void print(const QString& line) {
  std::printf("%s\n", qUtf8Printable(line));
  std::fflush(stdout);
}

}  // namespace

Tour::Tour(std::vector<TourStep> steps, const QString& folder) : steps_(std::move(steps)), folder_(folder) {}

void Tour::start() {
  if (!QDir().mkpath(folder_)) return fail(u"cannot create the folder %1"_s.arg(folder_));
  waiting_.start();
  QTimer::singleShot(pollInterval, this, &Tour::waitForWindow);
}

void Tour::waitForWindow() {
  if (next_ == steps_.size()) return;
  const TourStep& step = steps_[next_];
  if (QWidget* window = driver::frontWindowTitled(step.window)) {
    QTimer::singleShot(settleTime, window, [this, window] { runStep(window); });
  } else if (waiting_.elapsed() > windowTimeout) {
    fail(u"the window \"%1\" did not open"_s.arg(step.window));
  } else {
    QTimer::singleShot(pollInterval, this, &Tour::waitForWindow);
  }
}

void Tour::runStep(QWidget* window) {
  const TourStep& step = steps_[next_];
  const QString file = u"%1/%2-%3.png"_s.arg(folder_).arg(next_ + 1, 2, 10, QChar(u'0')).arg(step.picture);
  if (!window->grab().save(file)) return fail(u"cannot write the picture %1"_s.arg(file));
  print(u"%1. %2  [%3]"_s.arg(next_ + 1, 2).arg(step.description, file));
  ++next_;
  waiting_.restart();
  // Queued before acting: the action may open a modal dialog and return only after it has closed.
  QTimer::singleShot(pollInterval, this, &Tour::waitForWindow);
  if (!step.action(window)) fail(u"a control is missing or disabled in \"%1\""_s.arg(step.window));
}

void Tour::fail(const QString& reason) {
  failed_ = true;
  next_ = steps_.size();
  print(u"The tour ended early: "_s + reason);
  QApplication::closeAllWindows();
  QCoreApplication::exit(1);
}

}  // namespace parlexo
