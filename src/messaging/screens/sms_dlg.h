// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "messaging/core/sms_send_flow.h"
#include "messaging/core/sms_text.h"
#include "messaging/screens/send_page.h"

class QLabel;
class QLayout;
class QLineEdit;
class QRadioButton;

namespace parlexo {

class HyperlinkLabel;
class MessageEdit;
class UnsendableHint;
struct Template;

/// The SMS page: a text, its character set and its type.
class CQuillonSMSDlg final : public SendPage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CQuillonSMSDlg(const MessagingServices& services, QWidget* parent = nullptr);

  /// The current contents of the page.
  [[nodiscard]] SmsDraft draft() const;

 protected:
  [[nodiscard]] SendOutcome sendMessage() override;
  [[nodiscard]] QWidget* controlAtFault(SendOutcome outcome) const override;
  void clearMessage() override;

 private:
  [[nodiscard]] QLayout* messageColumn();
  [[nodiscard]] QLayout* counterRow();
  /// The line with the characters that the standard character set lacks, and a link to switch to Unicode. Has
  /// the same height when empty.
  [[nodiscard]] QWidget* createUnsendableLine();
  [[nodiscard]] QLayout* choiceColumn();
  [[nodiscard]] QLayout* templateRow();
  [[nodiscard]] SmsCharset charset() const;

  void applyCharset();
  void recount();
  void showUnsendable(const QString& text);
  void showPart();
  void switchToUnicode();
  void saveTemplate();
  void loadTemplate();
  void applyTemplate(const Template& content);
  void showTemplatesTip();

  SmsSendFlow flow_;

  MessageEdit* editor_ = nullptr;
  QRadioButton* standardCharset_ = nullptr;
  QRadioButton* unicodeCharset_ = nullptr;
  QRadioButton* standardType_ = nullptr;
  QLineEdit* totalSms_ = nullptr;
  QLineEdit* remaining_ = nullptr;
  QLabel* part_ = nullptr;
  UnsendableHint* unsendable_ = nullptr;
  HyperlinkLabel* unicodeLink_ = nullptr;
};

}  // namespace parlexo
