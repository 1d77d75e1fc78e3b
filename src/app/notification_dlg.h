// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "base/notifier.h"
#include "ui/gradient_page.h"

class QCheckBox;
class QHBoxLayout;

namespace parlexo {

/// The one message box of the program: icon, text, the buttons of its style and, where the caller allows
/// it, the wish not to see the message again.
class CNotificationDlg : public GradientDialog {
  Q_OBJECT

 public:
  /// `style` is made of message_style values; one without buttons of its own is closed by its close box.
  /// `suppressible` shows the check box "Don't show again".
  CNotificationDlg(const QString& text, unsigned style, bool suppressible, QWidget* parent = nullptr);

  /// The user's answer; Ok until the dialog has been shown.
  [[nodiscard]] MessageResult answer() const { return answer_; }
  /// Whether the user ticked the check box.
  [[nodiscard]] bool dontShowAgain() const;

  /// Escape and the close box: the mildest answer that the style offers.
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

}  // namespace parlexo
