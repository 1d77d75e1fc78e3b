// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/window_driver.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTabWidget>

#include "ui/gradient_page.h"

namespace parlexo::driver {

using namespace Qt::StringLiterals;

namespace {

QString withoutMnemonic(QString text) {
  return text.remove(u'&');
}

void pressKey(QWidget* receiver, int key, const QString& text = {}) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QApplication::sendEvent(receiver, &event);
  }
}

void clickAt(QWidget* receiver, QPointF position) {
  const auto buttons = {Qt::LeftButton, Qt::NoButton};
  auto type = QEvent::MouseButtonPress;
  for (const auto pressed : buttons) {
    QMouseEvent event(type, position, receiver->mapToGlobal(position), Qt::LeftButton, pressed,
                      Qt::NoModifier);
    QApplication::sendEvent(receiver, &event);
    type = QEvent::MouseButtonRelease;
  }
}

QAbstractItemView* findList(QWidget* window, const QString& name) {
  for (auto* view : window->findChildren<QAbstractItemView*>()) {
    if (view->accessibleName() == name && view->isVisible() && view->isEnabled()) return view;
  }
  return nullptr;
}

// Finds a control by the label that it is the buddy of.
QWidget* findControl(QWidget* window, const QString& label) {
  for (const auto* candidate : window->findChildren<QLabel*>()) {
    if (withoutMnemonic(candidate->text()) == label && candidate->isVisible()) return candidate->buddy();
  }
  return nullptr;
}

}  // namespace

QWidget* frontWindowTitled(const QString& title) {
  QWidget* front = frontWindow();
  return front && front->isVisible() && front->windowTitle().startsWith(title) ? front : nullptr;
}

bool typeInto(QWidget* window, const QString& label, const QString& text) {
  QWidget* control = findControl(window, label);
  if (!control || !control->isEnabled()) return false;
  control->setFocus();
  // One event for the whole text, like from an input method: a completion popup that opens in between would
  // receive the rest.
  pressKey(control, 0, text);
  return true;
}

bool click(QWidget* window, const QString& buttonText) {
  for (auto* button : window->findChildren<QAbstractButton*>()) {
    if (button->text() != buttonText || !button->isVisible() || !button->isEnabled()) continue;
    clickAt(button, QRectF(button->rect()).center());
    return true;
  }
  return false;
}

bool toggle(QWidget* window, const QString& boxText) {
  for (auto* box : window->findChildren<QCheckBox*>()) {
    if (box->text() != boxText || !box->isVisible() || !box->isEnabled()) continue;
    box->setFocus();
    pressKey(box, Qt::Key_Space, u" "_s);
    return true;
  }
  return false;
}

bool openTab(QWidget* window, const QString& text) {
  auto* tabs = window->findChild<QTabWidget*>();
  for (int i = 0; tabs && i < tabs->count(); ++i) {
    if (withoutMnemonic(tabs->tabText(i)) != text) continue;
    tabs->setCurrentIndex(i);
    return true;
  }
  return false;
}

bool toggleRow(QWidget* window, const QString& list, const QString& name) {
  QAbstractItemView* view = findList(window, list);
  for (int row = 0; view && row < view->model()->rowCount(view->rootIndex()); ++row) {
    const QModelIndex named = view->model()->index(row, 1, view->rootIndex());
    if (named.data().toString() != name) continue;
    view->setFocus();
    view->setCurrentIndex(named.siblingAtColumn(0));
    pressKey(view, Qt::Key_Space, u" "_s);
    return true;
  }
  return false;
}

bool showsText(QWidget* window, const QString& text) {
  QStringList texts;
  for (const auto* label : window->findChildren<QLabel*>())
    if (label->isVisible()) texts << label->text();
  for (const auto* field : window->findChildren<QPlainTextEdit*>())
    if (field->isVisible()) texts << field->toPlainText();
  return texts.join(u'\n').contains(text);
}

bool selectAll(QWidget* window, const QString& list) {
  QAbstractItemView* view = findList(window, list);
  if (!view || view->model()->rowCount(view->rootIndex()) == 0) return false;
  view->selectAll();
  return true;
}

QString readColumn(QWidget* window, const QString& list, int column) {
  QStringList cells;
  QAbstractItemView* view = findList(window, list);
  for (int row = 0; view && row < view->model()->rowCount(view->rootIndex()); ++row) {
    cells += view->model()->index(row, column, view->rootIndex()).data().toString();
  }
  return cells.join(u", "_s);
}

}  // namespace parlexo::driver
