// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "addressbook/core/contact_selection.h"
#include "messaging/core/messaging_services.h"
#include "messaging/core/recipients.h"
#include "messaging/core/send_calls.h"
#include "messaging/core/send_flow.h"
#include "ui/gradient_page.h"

class QLayout;
class QVBoxLayout;

namespace parlexo {

class DeliveryPanel;
class PictureButton;
class RecipientsPanel;
class UnansweredNotice;

/// In what the pages that send messages differ, their messages apart.
struct SendPageKind {
  QString typeWord;                                  ///< the kind of message in the status log
  SelectionMode selectionMode = SelectionMode::All;  ///< which contacts the selection offers
  RecipientNumber number = RecipientNumber::Phone;
  SenderIdUse senderIdUse = SenderIdUse::Set;
};

/// A page that sends messages: what all kinds have in common around the message itself. Recipients, schedule
/// and sender ID, the way to the status page, Send and what follows it.
class SendPage : public GradientPage {
  Q_OBJECT

 public:
  [[nodiscard]] const QString& typeWord() const { return kind_.typeWord; }

  /// Lets the user choose the recipients from the address book; see RecipientsPanel::selectContacts().
  void selectContacts(const QStringList& alsoTicked = {});

 Q_SIGNALS:
  /// A message was accepted for every recipient and the form is cleared.
  void messageSent(const QString& typeWord);
  /// The user wants to see what became of messages of this type.
  void statusRequested(const QString& typeWord);
  /// The user wants to add contacts to the address book, and asked for it with this button.
  void contactsToAdd(QWidget& button);

 protected:
  /// `services` must refer to objects that outlive the page.
  SendPage(const MessagingServices& services, SendPageKind kind, QWidget* parent);

  /// Lays the page out: `message` above the common controls, with `stretch` parts of the free height against
  /// 2 for the recipients. To be called once, by the constructor that knows the message's controls; they come
  /// first in the tab order if they exist by then.
  void layOut(QLayout* message, int stretch);

  /// A button of the page.
  [[nodiscard]] PictureButton* button(const QString& text, const QString& name);

  [[nodiscard]] const MessagingServices& services() const { return services_; }
  [[nodiscard]] RecipientsPanel& recipients() const { return *recipients_; }
  [[nodiscard]] const Schedule& schedule() const;

  /// Sends what the page holds and tells the user what became of it.
  [[nodiscard]] virtual SendOutcome sendMessage() = 0;
  /// Where the user mends what kept the message from being sent; null when that is nowhere on the page.
  [[nodiscard]] virtual QWidget* controlAtFault(SendOutcome outcome) const;
  /// Empties the message's own controls.
  virtual void clearMessage() = 0;

 private:
  void addBottomRow(QVBoxLayout& layout);
  void send();
  void beginAnew();

  MessagingServices services_;
  SendPageKind kind_;
  bool isSending_ = false;
  RecipientsPanel* recipients_ = nullptr;
  UnansweredNotice* notice_ = nullptr;
  DeliveryPanel* delivery_ = nullptr;
};

}  // namespace parlexo
