// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/input_block.h"

#include <algorithm>
#include <vector>

#include <QApplication>
#include <QEvent>
#include <QWindow>

namespace parlexo {

namespace {

std::vector<const InputBlock*>& activeBlocks() {
  static std::vector<const InputBlock*> blocks;
  return blocks;
}

bool isPointerInput(QEvent::Type type) {
  switch (int(type)) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

bool isKeyInput(QEvent::Type type) {
  switch (int(type)) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
      return true;
    default:
      return false;
  }
}

/// Returns the native window of `target`, which may be a widget, a window, an action or a shortcut.
const QObject* findWindow(const QObject* target) {
  for (; target; target = target->parent()) {
    if (const auto* widget = qobject_cast<const QWidget*>(target)) return widget->window()->windowHandle();
    if (qobject_cast<const QWindow*>(target)) return target;
  }
  return nullptr;
}

constexpr char exemptProperty[] = "acceptsInputDuringWaits";

bool isExempt(const QObject* window) {
  const QWidgetList widgets = QApplication::topLevelWidgets();
  return window && std::ranges::any_of(widgets, [window](const QWidget* widget) {
           return widget->windowHandle() == window && widget->property(exemptProperty).toBool();
         });
}

}  // namespace

InputBlock::InputBlock(CloseRequests closeRequests)
    : closeRequests_(closeRequests), modalBefore_(QApplication::activeModalWidget()) {
  activeBlocks().push_back(this);
  qApp->installEventFilter(this);
}

InputBlock::~InputBlock() {
  std::erase(activeBlocks(), this);
}

bool InputBlock::isBlocked(const QWidget& widget) {
  return std::ranges::any_of(activeBlocks(), [&](const auto* block) { return !block->isAllowed(&widget); });
}

void InputBlock::exempt(QWidget& window) {
  window.setProperty(exemptProperty, true);
}

bool InputBlock::isAllowed(const QObject* target) const {
  const QObject* window = findWindow(target);
  if (isExempt(window)) return true;
  const QWidget* modal = QApplication::activeModalWidget();
  if (!modal || modal == modalBefore_) return false;
  const QWidget* popup = QApplication::activePopupWidget();
  const bool inPopup = popup && window == popup->windowHandle();
  return inPopup || (window && window == modal->windowHandle());
}

bool InputBlock::eventFilter(QObject* target, QEvent* event) {
  const bool isClose = event->type() == QEvent::Close && closeRequests_ == CloseRequests::Dropped;
  const bool isInput = isPointerInput(event->type()) || isKeyInput(event->type()) || isClose;
  if (!isInput || isAllowed(target)) return false;
  event->setAccepted(event->type() != QEvent::Close && event->type() != QEvent::ShortcutOverride);
  return true;
}

}  // namespace parlexo
