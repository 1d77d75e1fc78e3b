// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/notification_notifier.h"

#include "app/core/notification_results.h"
#include "app/notification_dlg.h"
#include "ui/gradient_page.h"

namespace parlexo {

MessageResult NotificationNotifier::show(const QString& text, unsigned style, int suppressibleNumber) {
  const bool suppressible = suppressibleNumber != 0;
  if (suppressible && settings_.isMessageSuppressed(suppressibleNumber)) return suppressedResult(style);
  // That may be the progress box: a message owned by it can't get behind it.
  CNotificationDlg dialog(text, style, suppressible, frontWindow());
  dialog.exec();
  if (dialog.dontShowAgain()) settings_.suppressMessage(suppressibleNumber);
  return dialog.answer();
}

}  // namespace parlexo
