// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/news_announcement.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QWindow>

#include "account/screens/news_dlg.h"

namespace parlexo {

namespace {

constexpr qint64 forwardingTime = 700;  // ms for the user to notice the dialog and stop typing

/// Forwards key events of a dialog to the focused text field of the window below, until no key was pressed
/// for forwardingTime. Escape always closes the dialog.
class KeyForwarder final : public QObject {
 public:
  KeyForwarder(const QWidget& dialog, const QWidget& window) : dialog_(dialog), window_(window) {
    sinceLastKey_.start();
    qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* target, QEvent* event) override {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || target != dialog_.windowHandle()) return false;
    if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) return false;
    // Looked up for each key, because Tab moves the focus.
    QWidget* field = window_.focusWidget();
    const bool isTextField = field && field->testAttribute(Qt::WA_InputMethodEnabled);
    if (!isTextField || sinceLastKey_.hasExpired(forwardingTime)) return false;
    sinceLastKey_.start();
    QCoreApplication::sendEvent(field, event);
    return true;
  }

 private:
  const QWidget& dialog_;
  const QWidget& window_;
  QElapsedTimer sinceLastKey_;
};

}  // namespace

void NewsAnnouncement::announce(const QString& news) {
  quietMoment_.await([this, news] { show(news); });
}

void NewsAnnouncement::show(const QString& news) {
  CNewsDlg dialog(news, &window_);
  const KeyForwarder forwarder(dialog, window_);
  dialog.exec();
}

}  // namespace parlexo
