// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "base/message_type.h"
#include "messaging/core/messaging_services.h"
#include "messaging/core/schedule.h"
#include "messaging/core/send_flow.h"
#include "messaging/screens/page_traits.h"
#include "ui/gradient_page.h"

class QLabel;
class QLayout;
class QLineEdit;
class QVBoxLayout;

namespace parlexo {

class DeliveryPanel;
class PictureButton;
class RecipientsPanel;

/// Base class of the pages that send messages: everything but the message itself. Shows the recipients, the
/// schedule, the sender ID and the buttons, and runs the send.
class SendPage : public GradientPage {
  Q_OBJECT

 public:
  [[nodiscard]] MessageType messageType() const { return traits_.type; }

  /// Lets the user select recipients from the address book; see RecipientsPanel::selectContacts().
  void selectContacts(const QStringList& alsoTicked = {});

 Q_SIGNALS:
  /// A message was accepted for every recipient and the form has been cleared.
  void messageSent(MessageType type);
  /// The user asked for the status of messages of this type.
  void statusRequested(MessageType type);
  /// The user asked to add contacts to the address book by pressing `button`.
  void contactsToAdd(QWidget& button);

 protected:
  /// `services` must refer to objects that outlive the page.
  SendPage(const MessagingServices& services, MessageType type, QWidget* parent);

  /// Creates the layout: `message` above the common controls, with a stretch factor of `stretch` against 2
  /// for the recipients. The derived class calls it once, in its constructor. Controls that it has created
  /// before come first in the tab order.
  void layOut(QLayout* message, int stretch);

  /// Creates a button of the page.
  [[nodiscard]] PictureButton* button(const QString& text, const QString& name);
  /// Creates a read-only field for a number of up to five digits.
  [[nodiscard]] QLineEdit* counterField(const QString& name);

  [[nodiscard]] const MessagingServices& services() const { return services_; }
  [[nodiscard]] const PageTraits& traits() const { return traits_; }
  [[nodiscard]] RecipientsPanel& recipientsPanel() const { return *recipients_; }
  [[nodiscard]] const Schedule& schedule() const;

  /// Sends the message and reports the result to the user.
  [[nodiscard]] virtual SendOutcome sendMessage() = 0;
  /// The control to focus after `outcome`, where the user can correct the message; null for none.
  [[nodiscard]] virtual QWidget* controlAtFault(SendOutcome outcome) const;
  /// Clears the derived class's controls.
  virtual void clearMessage() = 0;

 private:
  [[nodiscard]] QLabel* createOutcomeUnknownNotice();
  void addBottomRow(QVBoxLayout& layout);
  void send();
  void updateNotice(SendOutcome outcome);
  void clearForm();

  MessagingServices services_;
  const PageTraits& traits_;
  bool isSending_ = false;
  RecipientsPanel* recipients_ = nullptr;
  QLabel* outcomeUnknownNotice_ = nullptr;
  DeliveryPanel* delivery_ = nullptr;
};

}  // namespace parlexo
