// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/front_window.h"

#include <QApplication>
#include <QWidget>

namespace parlexo {

QWidget* frontWindow() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  const QWidgetList windows = QApplication::topLevelWidgets();
  for (QWidget* window : windows)
    if (window->isVisible() && window->windowType() == Qt::Window) return window;
  return nullptr;
}

}  // namespace parlexo
