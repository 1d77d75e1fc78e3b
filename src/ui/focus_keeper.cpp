// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/focus_keeper.h"

#include <array>

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include "ui/front_window.h"

namespace parlexo {

namespace {

// Pauses between the checks, in milliseconds. Long enough in all for a window manager to handle what has
// happened, and short enough that the user can't have switched to another program on purpose meanwhile.
constexpr std::array<int, 4> pauses{0, 60, 100, 140};

bool isDialogOrMainWindow(const QObject* target) {
  if (!target->isWidgetType()) return false;
  const auto* widget = static_cast<const QWidget*>(target);
  return widget->isWindow() && (widget->windowType() == Qt::Dialog || widget->windowType() == Qt::Window);
}

// A file dialog of the system's has a widget that is never shown. The system's own window has the focus then,
// and no window of the program is active.
bool mayTakeFocus(const QWidget& window) {
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
    // A window that hides is deactivated first. Only then is it not another program that takes the focus.
    if (window.isHidden()) startSettling();
  } else if ((event.type() == QEvent::Show || event.type() == QEvent::Hide) && !event.spontaneous()) {
    // Between two changes no window may be active for a moment; without a recent one that means that another
    // program has the focus.
    if (QApplication::activeWindow() || timer_.isActive()) startSettling();
  }
}

void FocusKeeper::startSettling() {
  step_ = 0;
  timer_.start(pauses[step_]);
}

void FocusKeeper::check() {
  QWidget* front = frontWindow();
  if (front && !QApplication::activeWindow() && mayTakeFocus(*front)) front->activateWindow();
  if (++step_ < pauses.size()) timer_.start(pauses[step_]);
}

}  // namespace parlexo
