// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/focus_keeper.h"

#include <array>

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include "ui/gradient_page.h"

namespace parlexo {

namespace {

// Delays between the checks, in milliseconds. In total long enough for a window manager to process the
// change, but too short for the user to switch to another program on purpose.
constexpr std::array<int, 4> pauses{0, 60, 100, 140};

bool isDialogOrMainWindow(const QObject* target) {
  if (!target->isWidgetType()) return false;
  const auto* widget = static_cast<const QWidget*>(target);
  return widget->isWindow() && (widget->windowType() == Qt::Dialog || widget->windowType() == Qt::Window);
}

// A native file dialog has a QWidget that is never shown. While it is open the system's own window has the
// focus and no window of the program is active.
bool canBeActivated(const QWidget& window) {
  return !window.testAttribute(Qt::WA_DontShowOnScreen) && !window.isMinimized();
}

}  // namespace

FocusKeeper::FocusKeeper() {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &FocusKeeper::check);
  qApp->installEventFilter(this);
}

bool FocusKeeper::eventFilter(QObject* target, QEvent* event) {
  if (isDialogOrMainWindow(target)) observe(*static_cast<QWidget*>(target), *event);
  return false;
}

void FocusKeeper::observe(const QWidget& window, const QEvent& event) {
  if (event.type() == QEvent::WindowDeactivate) {
    // A hidden window is deactivated too. If it is still visible, another window or program got the focus.
    if (window.isHidden()) restartChecks();
  } else if ((event.type() == QEvent::Show || event.type() == QEvent::Hide) && !event.spontaneous()) {
    // Right after another change there may briefly be no active window. Otherwise having none means that
    // another program has the focus.
    if (QApplication::activeWindow() || timer_.isActive()) restartChecks();
  }
}

void FocusKeeper::restartChecks() {
  step_ = 0;
  timer_.start(pauses[step_]);
}

void FocusKeeper::check() {
  QWidget* front = frontWindow();
  if (front && !QApplication::activeWindow() && canBeActivated(*front)) front->activateWindow();
  if (++step_ < pauses.size()) timer_.start(pauses[step_]);
}

}  // namespace parlexo
