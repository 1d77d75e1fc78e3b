// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/news_announcement.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QWindow>

#include "account/screens/news_dlg.h"

namespace parlexo {

namespace {

constexpr qint64 handoverTime = 700;  // milliseconds: a user's time to notice the dialog and stop typing

/// Passes keys meant for a dialog on to the text field below it that has the focus, from the dialog's opening
/// until no key has come for a while. Escape, which does nothing in a field, always closes the dialog.
class TypingHandover final : public QObject {
 public:
  TypingHandover(const QWidget& dialog, const QWidget& window) : dialog_(dialog), window_(window) {
    sinceLastKey_.start();
    qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* target, QEvent* event) override {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || target != dialog_.windowHandle()) return false;
    if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) return false;
    // Asked for each key, because Tab moves on to another one.
    QWidget* field = window_.focusWidget();
    const bool isTextField = field && field->testAttribute(Qt::WA_InputMethodEnabled);
    if (!isTextField || sinceLastKey_.hasExpired(handoverTime)) return false;
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
  const TypingHandover handover(dialog, window_);
  dialog.exec();
}

}  // namespace parlexo
