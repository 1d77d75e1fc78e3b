// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/gradient_page.h"

#include <algorithm>

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QLinearGradient>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include "ui/look.h"
#include "ui/picture_button.h"

namespace parlexo {

namespace {

void paintGradient(QWidget& widget, const QRect& dirty) {
  QLinearGradient gradient(0, 0, 0, widget.height());
  gradient.setColorAt(0, look::gradientTop);
  gradient.setColorAt(0.5, look::dialogBackground);
  gradient.setColorAt(1, look::gradientBottom);
  QPainter(&widget).fillRect(dirty, gradient);
}

bool isEnter(const QKeyEvent& event) {
  const bool isReturn = event.modifiers() == Qt::NoModifier && event.key() == Qt::Key_Return;
  return isReturn || (!(event.modifiers() & ~Qt::KeypadModifier) && event.key() == Qt::Key_Enter);
}

QSize fittingSize(const QWidget& dialog) {
  QSize size = dialog.sizeHint().expandedTo(dialog.minimumSize());
  if (dialog.layout()->hasHeightForWidth())
    size.setHeight(std::max(dialog.minimumHeight(), dialog.layout()->totalHeightForWidth(size.width())));
  return size.boundedTo(dialog.screen()->availableSize());
}

PictureButton* defaultButton(const QWidget& dialog) {
  for (auto* button : dialog.findChildren<PictureButton*>()) {
    if (button->isDefault() && button->isEnabled() && button->isVisibleTo(&dialog)) return button;
  }
  return nullptr;
}

}  // namespace

GradientPage::GradientPage(QWidget* parent) : QWidget(parent) {}

void GradientPage::paintEvent(QPaintEvent* event) {
  paintGradient(*this, event->rect());
}

GradientDialog::GradientDialog(QWidget* parent) : QDialog(parent) {
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowIcon(programIcon());
}

void GradientDialog::setVisible(bool visible) {
  // By default Qt limits a new window to two thirds of the screen and cuts texts off.
  if (visible && !testAttribute(Qt::WA_Resized) && layout()) resize(fittingSize(*this));
  QDialog::setVisible(visible);
}

void GradientDialog::paintEvent(QPaintEvent* event) {
  paintGradient(*this, event->rect());
}

void GradientDialog::keyPressEvent(QKeyEvent* event) {
  PictureButton* button = isEnter(*event) ? defaultButton(*this) : nullptr;
  if (button) {
    button->click();
    return;
  }
  QDialog::keyPressEvent(event);
}

QWidget* frontWindow() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  const QWidgetList windows = QApplication::topLevelWidgets();
  for (QWidget* window : windows)
    if (window->isVisible() && window->windowType() == Qt::Window) return window;
  return nullptr;
}

}  // namespace parlexo
