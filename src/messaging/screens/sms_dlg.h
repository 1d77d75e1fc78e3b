#pragma once

#include <QString>

#include "messaging/core/messaging_services.h"
#include "messaging/core/sms_send_flow.h"
#include "messaging/core/sms_text.h"
#include "ui/gradient_page.h"

class QLayout;
class QLineEdit;
class QRadioButton;

namespace parlexo {

class DeliveryPanel;
class MessageEdit;
class PictureButton;
class RecipientsPanel;
class UnansweredNotice;

/// The SMS page: a text, its character set and type, recipients, and the way to the gateway.
class CQuillonSMSDlg final : public GradientPage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CQuillonSMSDlg(const MessagingServices& services, QWidget* parent = nullptr);

  /// What the page holds now.
  [[nodiscard]] SmsDraft draft() const;

 Q_SIGNALS:
  /// A message was accepted for every recipient and the form is cleared.
  void messageSent(const QString& typeWord);
  /// The user wants to see what became of messages of this type.
  void statusRequested(const QString& typeWord);

 private:
  void createControls();
  void createCharsetChoice();
  void createTypeChoice();
  void createCounters();
  void createLayout();
  [[nodiscard]] QLayout* messageColumn();
  [[nodiscard]] QLayout* choiceColumn();
  [[nodiscard]] QLayout* bottomRow();
  [[nodiscard]] PictureButton* button(const QString& text, const QString& name);
  [[nodiscard]] PictureButton* buttonToCome(const QString& text, const QString& name);
  [[nodiscard]] SmsCharset charset() const;

  void applyCharset();
  void recount();
  void send();
  void clearForm();
  void showTemplatesTip();

  MessagingServices services_;
  SmsSendFlow flow_;
  bool isSending_ = false;

  MessageEdit* editor_ = nullptr;
  QRadioButton* standardCharset_ = nullptr;
  QRadioButton* unicodeCharset_ = nullptr;
  QRadioButton* standardType_ = nullptr;
  QRadioButton* flashType_ = nullptr;
  QLineEdit* totalSms_ = nullptr;
  QLineEdit* remaining_ = nullptr;
  RecipientsPanel* recipients_ = nullptr;
  UnansweredNotice* notice_ = nullptr;
  DeliveryPanel* delivery_ = nullptr;
};

}  // namespace parlexo
