#include "app/notification_notifier.h"

#include <QApplication>

#include "app/core/notification_results.h"
#include "app/notification_dlg.h"

namespace parlexo {

namespace {
// The progress box counts too: a message owned by it can't get behind it.
QWidget* topWindow() {
  QWidget* modal = QApplication::activeModalWidget();
  return modal ? modal : QApplication::activeWindow();
}
}  // namespace

MessageResult NotificationNotifier::show(const QString& text, unsigned style, int suppressibleNumber) {
  const bool suppressible = suppressibleNumber != 0;
  if (suppressible && settings_.isMessageSuppressed(suppressibleNumber)) return suppressedResult(style);
  CNotificationDlg dialog(text, style, suppressible, topWindow());
  dialog.exec();
  if (dialog.dontShowAgain()) settings_.suppressMessage(suppressibleNumber);
  return dialog.answer();
}

}  // namespace parlexo
