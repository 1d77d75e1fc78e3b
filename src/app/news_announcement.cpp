#include "app/news_announcement.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWindow>

#include "account/screens/news_dlg.h"

namespace parlexo {

namespace {

constexpr qint64 handoverTime = 700;  // milliseconds: a user's time to notice the dialog and stop typing

/// Passes keys meant for a dialog on to a text field below it, from its opening until no key has come for a
/// while.
class TypingHandover final : public QObject {
 public:
  TypingHandover(QWidget& dialog, QWidget* field) : dialog_(dialog), field_(field) {
    sinceLastKey_.start();
    if (field_ && field_->testAttribute(Qt::WA_InputMethodEnabled)) qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* target, QEvent* event) override {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || target != dialog_.windowHandle()) return false;
    if (!field_ || sinceLastKey_.elapsed() > handoverTime) return false;
    sinceLastKey_.start();
    QCoreApplication::sendEvent(field_, event);
    return true;
  }

 private:
  QWidget& dialog_;
  QPointer<QWidget> field_;
  QElapsedTimer sinceLastKey_;
};

}  // namespace

void NewsAnnouncement::announce(const QString& news) {
  quietMoment_.await([this, news] { show(news); });
}

void NewsAnnouncement::show(const QString& news) {
  CNewsDlg dialog(news, &window_);
  const TypingHandover handover(dialog, quietMoment_.hasSeenInput() ? window_.focusWidget() : nullptr);
  dialog.exec();
}

}  // namespace parlexo
