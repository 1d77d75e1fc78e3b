#pragma once

#include <QString>

#include "messaging/core/sms_send_flow.h"
#include "messaging/core/sms_text.h"
#include "messaging/screens/send_page.h"

class QLayout;
class QLineEdit;
class QRadioButton;

namespace parlexo {

class MessageEdit;

/// The SMS page: a text, its character set and type, recipients, and the way to the gateway.
class CQuillonSMSDlg final : public SendPage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CQuillonSMSDlg(const MessagingServices& services, QWidget* parent = nullptr);

  /// What the page holds now.
  [[nodiscard]] SmsDraft draft() const;

 protected:
  [[nodiscard]] SendOutcome sendMessage() override;
  void clearMessage() override;

 private:
  void createControls();
  void createCharsetChoice();
  void createTypeChoice();
  void createCounters();
  [[nodiscard]] QLayout* messageColumn();
  [[nodiscard]] QLayout* choiceColumn();
  [[nodiscard]] PictureButton* buttonToCome(const QString& text, const QString& name);
  [[nodiscard]] SmsCharset charset() const;

  void applyCharset();
  void recount();
  void showTemplatesTip();

  SmsSendFlow flow_;

  MessageEdit* editor_ = nullptr;
  QRadioButton* standardCharset_ = nullptr;
  QRadioButton* unicodeCharset_ = nullptr;
  QRadioButton* standardType_ = nullptr;
  QRadioButton* flashType_ = nullptr;
  QLineEdit* totalSms_ = nullptr;
  QLineEdit* remaining_ = nullptr;
};

}  // namespace parlexo
