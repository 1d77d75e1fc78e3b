// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/tour.h"

#include <cstdio>
#include <utility>

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "tour/tour_hands.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int pollInterval = 50;       // ms between two looks for the next window
constexpr int settleTime = 300;        // ms that a window gets to finish painting before its picture
constexpr qint64 longestWait = 60000;  // ms after which a window will not come any more

void print(const QString& line) {
  std::printf("%s\n", qUtf8Printable(line));
  std::fflush(stdout);
}

}  // namespace

Tour::Tour(std::vector<TourStep> steps, const QString& folder) : steps_(std::move(steps)), folder_(folder) {}

void Tour::start() {
  if (!QDir().mkpath(folder_)) return fail(u"the folder %1 can't be made"_s.arg(folder_));
  waiting_.start();
  QTimer::singleShot(pollInterval, this, &Tour::waitForWindow);
}

void Tour::waitForWindow() {
  if (next_ == steps_.size()) return;
  const TourStep& step = steps_[next_];
  if (QWidget* window = hands::windowInFront(step.window)) {
    QTimer::singleShot(settleTime, window, [this, window] { takeStep(window); });
  } else if (waiting_.elapsed() > longestWait) {
    fail(u"the window \"%1\" did not come"_s.arg(step.window));
  } else {
    QTimer::singleShot(pollInterval, this, &Tour::waitForWindow);
  }
}

void Tour::takeStep(QWidget* window) {
  const TourStep& step = steps_[next_];
  const QString file = u"%1/%2-%3.png"_s.arg(folder_).arg(next_ + 1, 2, 10, QChar(u'0')).arg(step.picture);
  if (!window->grab().save(file)) return fail(u"the picture %1 can't be written"_s.arg(file));
  print(u"%1. %2  [%3]"_s.arg(next_ + 1, 2).arg(step.account, file));
  ++next_;
  waiting_.restart();
  // Queued before acting: what is pressed may open a window and not return before that has closed.
  QTimer::singleShot(pollInterval, this, &Tour::waitForWindow);
  if (!step.act(window)) fail(u"\"%1\" lacks what this step needs"_s.arg(step.window));
}

void Tour::fail(const QString& why) {
  failed_ = true;
  next_ = steps_.size();
  print(u"The tour ended early: "_s + why);
  QApplication::closeAllWindows();
  QCoreApplication::exit(1);
}

}  // namespace parlexo
