// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/send_page.h"

#include <utility>

#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "base/run_state.h"
#include "messaging/screens/delivery_panel.h"
#include "messaging/screens/recipients_panel.h"
#include "messaging/screens/unanswered_notice.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

SendPage::SendPage(const MessagingServices& services, SendPageKind kind, QWidget* parent)
    : GradientPage(parent), services_(services), kind_(std::move(kind)) {}

void SendPage::layOut(QLayout* message, int stretch) {
  constexpr int recipientsStretch = 2;
  recipients_ =
      new RecipientsPanel(services_.addressBook, services_.notifier, kind_.selectionMode, kind_.number, this);
  connect(recipients_, &RecipientsPanel::contactsToAdd, this, &SendPage::contactsToAdd);
  notice_ = new UnansweredNotice(this);
  delivery_ = new DeliveryPanel(services_.state.senderId, kind_.senderIdUse, this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 10, 14, 12);
  layout->setSpacing(10);
  layout->addLayout(message, stretch);
  layout->addWidget(recipients_, recipientsStretch);
  layout->addWidget(notice_);
  addBottomRow(*layout);
}

void SendPage::addBottomRow(QVBoxLayout& layout) {
  auto* status = button(u"&Get Status"_s, u"getStatusButton"_s);
  connect(status, &PictureButton::clicked, this, [this] { Q_EMIT statusRequested(kind_.typeWord); });
  auto* sendButton = button(u"S&end >"_s, u"sendButton"_s);
  connect(sendButton, &PictureButton::clicked, this, &SendPage::send);
  sendButton->setDefault(true);

  auto* row = new QHBoxLayout;
  row->addWidget(delivery_, 1);
  row->addSpacing(24);
  row->addWidget(status, 0, Qt::AlignBottom);
  row->addWidget(sendButton, 0, Qt::AlignBottom);
  layout.addLayout(row);
}

PictureButton* SendPage::button(const QString& text, const QString& name) {
  auto* created = new PictureButton(text, this);
  created->setObjectName(name);
  return created;
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
  notice_->follow(outcome);
  if (QWidget* control = controlAtFault(outcome)) control->setFocus(Qt::OtherFocusReason);
  if (outcome == SendOutcome::Delivered) beginAnew();
}

QWidget* SendPage::controlAtFault(SendOutcome outcome) const {
  return outcome == SendOutcome::RecipientsAtFault ? recipients_->selectButton() : nullptr;
}

void SendPage::beginAnew() {
  clearMessage();
  recipients_->clearEntries();
  delivery_->sendNow();
  Q_EMIT messageSent(kind_.typeWord);
}

}  // namespace parlexo
