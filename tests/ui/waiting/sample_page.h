// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMouseEvent>
#include <QVBoxLayout>

#include "tests/support/widgets.h"
#include "ui/gradient_page.h"
#include "ui/picture_button.h"
#include "ui/waiting/connecting_dlg.h"

namespace parlexo::test {

/// A window with one button whose presses are counted.
struct SamplePage {
  SamplePage() {
    (new QVBoxLayout(&window))->addWidget(send);
    showActive(window);
  }

  /// Queues a click, like one that arrives while the interface thread is busy.
  void queueClick() const {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
      QCoreApplication::postEvent(send, new QMouseEvent(type, QPointF(5, 5), send->mapToGlobal(QPointF(5, 5)),
                                                        Qt::LeftButton, buttons, Qt::NoModifier));
    }
  }

  GradientPage window;
  PictureButton* send = new PictureButton(QStringLiteral("S&end >"));
  QSignalSpy clicks{send, &QAbstractButton::clicked};
};

inline QList<CConnectingDlg*> boxes() {
  QList<CConnectingDlg*> found;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* box = qobject_cast<CConnectingDlg*>(window)) found << box;
  }
  return found;
}

}  // namespace parlexo::test
