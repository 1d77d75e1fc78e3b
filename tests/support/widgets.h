// SPDX-License-Identifier: GPL-3.0-or-later
// Included by tests of windows: test.h, the common widgets, and the input of a user.
#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "tests/support/test.h"

namespace parlexo::test {

/// The child of `parent` with this object name. The test program ends if there is none.
template <class Widget = QWidget>
Widget& child(const QWidget& parent, const char* name) {
  auto* widget = parent.findChild<Widget*>(QLatin1String(name));
  if (!widget) qFatal("no %s", name);
  return *widget;
}

inline void click(const QWidget& parent, const char* button) {
  QTest::mouseClick(&child(parent, button), Qt::LeftButton);
}

/// Replaces the text of a line edit.
inline void type(const QWidget& parent, const char* edit, const QString& text) {
  child<QLineEdit>(parent, edit).setText(text);
}

/// What a list shows in one of its columns, from top to bottom.
inline QStringList columnCells(const QAbstractItemView& view, int column) {
  const QAbstractItemModel& model = *view.model();
  QStringList cells;
  for (int row = 0; row < model.rowCount(); ++row) cells << model.index(row, column).data().toString();
  return cells;
}

/// The texts of all visible labels, buttons and fields.
inline QStringList visibleTexts(const QWidget& window) {
  QStringList texts;
  for (const auto* widget : window.findChildren<QWidget*>()) {
    const QString text = widget->property("text").toString();
    if (widget->isVisible() && !text.isEmpty()) texts << text;
  }
  return texts;
}

/// Shows a window and waits until it has the keyboard.
inline void showActive(QWidget& window) {
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

}  // namespace parlexo::test
