// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/notifier.h"
#include "base/settings.h"
#include "ui/gradient_page.h"

class QCheckBox;
class QHBoxLayout;

namespace parlexo {

/// The message box of the program: icon, text, the buttons of its style and an optional "Don't show again"
/// check box.
class CNotificationDlg : public GradientDialog {
  Q_OBJECT

 public:
  /// `style` is a combination of message_style values; with okCancel or abortRetryIgnore there are no
  /// buttons, only the close button of the window. `suppressible` shows the check box.
  CNotificationDlg(const QString& text, unsigned style, bool suppressible, QWidget* parent = nullptr);

  /// The user's answer; Ok before the dialog has been shown.
  [[nodiscard]] MessageResult answer() const { return answer_; }
  /// Returns whether the check box is checked.
  [[nodiscard]] bool dontShowAgain() const;

  /// Closes the dialog with closeResult(): for Escape and the close button.
  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] QHBoxLayout* createHeader(const QString& text);
  [[nodiscard]] QHBoxLayout* createButtons();
  void addButton(QHBoxLayout& row, const QString& text, MessageResult result);
  void focusDefaultButton();
  void end(MessageResult answer);

  unsigned style_;
  MessageResult answer_ = MessageResult::Ok;
  QCheckBox* dontShowAgain_ = nullptr;
};

/// Shows messages in a CNotificationDlg above the front window and stores suppressed ones in the settings.
class NotificationNotifier final : public Notifier {
 public:
  /// `settings` must outlive the notifier.
  explicit NotificationNotifier(Settings& settings) : settings_(settings) {}

  MessageResult show(const QString& text, unsigned style, int suppressibleNumber = 0) override;

 private:
  Settings& settings_;
};

}  // namespace parlexo
