// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/send_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "base/run_state.h"
#include "messaging/screens/delivery_panel.h"
#include "messaging/screens/recipients_panel.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

SendPage::SendPage(const MessagingServices& services, MessageType type, QWidget* parent)
    : GradientPage(parent), services_(services), traits_(pageTraits(type)) {}

void SendPage::layOut(QLayout* message, int stretch) {
  constexpr int recipientsStretch = 2;
  recipients_ = new RecipientsPanel(services_.addressBook, services_.notifier, traits_.selectionMode,
                                    traits_.number, this);
  connect(recipients_, &RecipientsPanel::contactsToAdd, this, &SendPage::contactsToAdd);
  outcomeUnknownNotice_ = createOutcomeUnknownNotice();
  delivery_ = new DeliveryPanel(services_.state.senderId, messageTraits(traits_.type).senderIdUse, this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::pageMargins);
  layout->setSpacing(look::rowSpacing);
  layout->addLayout(message, stretch);
  layout->addWidget(recipients_, recipientsStretch);
  layout->addWidget(outcomeUnknownNotice_);
  addBottomRow(*layout);
}

QLabel* SendPage::createOutcomeUnknownNotice() {
  auto* notice = new QLabel(this);
  notice->setObjectName(u"outcomeUnknownNotice"_s);
  notice->setTextFormat(Qt::PlainText);
  notice->setText(
      tr("No answer came to your last message, so it may have been accepted. Look into the account history "
         "before you send it again."));
  notice->setWordWrap(true);
  notice->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  notice->setFocusPolicy(Qt::ClickFocus);
  notice->hide();
  return notice;
}

void SendPage::addBottomRow(QVBoxLayout& layout) {
  auto* status = button(tr("&Get Status"), u"getStatusButton"_s);
  connect(status, &PictureButton::clicked, this, [this] { Q_EMIT statusRequested(traits_.type); });
  auto* sendButton = button(tr("S&end >"), u"sendButton"_s);
  connect(sendButton, &PictureButton::clicked, this, &SendPage::send);
  sendButton->setDefault(true);

  auto* row = new QHBoxLayout;
  row->addWidget(delivery_, 1);
  row->addSpacing(look::groupSpacing);
  row->addWidget(status, 0, Qt::AlignBottom);
  row->addWidget(sendButton, 0, Qt::AlignBottom);
  layout.addLayout(row);
}

PictureButton* SendPage::button(const QString& text, const QString& name) {
  auto* created = new PictureButton(text, this);
  created->setObjectName(name);
  return created;
}

QLineEdit* SendPage::counterField(const QString& name) {
  constexpr int digits = 5;
  QLineEdit* field = readOnlyField(name, this);
  field->setFocusPolicy(Qt::ClickFocus);
  field->setAlignment(Qt::AlignRight);
  field->setFixedWidth(field->fontMetrics().averageCharWidth() * digits + look::fieldPadding);
  return field;
}

const Schedule& SendPage::schedule() const {
  return delivery_->schedule();
}

void SendPage::selectContacts(const QStringList& alsoTicked) {
  recipients_->selectContacts(alsoTicked);
}

void SendPage::send() {
  if (isSending_) return;
  const QScopedValueRollback guard(isSending_, true);
  const SendOutcome outcome = sendMessage();
  updateNotice(outcome);
  if (QWidget* control = controlAtFault(outcome)) control->setFocus(Qt::OtherFocusReason);
  if (outcome == SendOutcome::Delivered) clearForm();
}

// A message that was not sent leaves the notice about the one before unchanged.
void SendPage::updateNotice(SendOutcome outcome) {
  switch (outcome) {
    case SendOutcome::OutcomeUnknown:
      outcomeUnknownNotice_->show();
      return;
    case SendOutcome::PartlyFailed:
    case SendOutcome::Delivered:
      outcomeUnknownNotice_->hide();
      return;
    case SendOutcome::MessageAtFault:
    case SendOutcome::FileAtFault:
    case SendOutcome::RecipientsAtFault:
    case SendOutcome::NotSent:
      return;
  }
}

QWidget* SendPage::controlAtFault(SendOutcome outcome) const {
  return outcome == SendOutcome::RecipientsAtFault ? recipients_->selectButton() : nullptr;
}

void SendPage::clearForm() {
  clearMessage();
  recipients_->clearEntries();
  delivery_->sendNow();
  Q_EMIT messageSent(traits_.type);
}

}  // namespace parlexo
