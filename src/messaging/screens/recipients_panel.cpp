// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/recipients_panel.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QShortcut>
#include <QVBoxLayout>

#include "addressbook/screens/select_contacts_dlg.h"
#include "base/notifier.h"
#include "contacts/address_book.h"
#include "messaging/core/messaging_texts.h"
#include "ui/hyperlink_label.h"
#include "ui/list_style.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString recipientsSummary(const Recipients& recipients, int repeated) {
  const std::size_t shown = recipients.entries().size();
  if (shown == 0) return u"No recipients"_s;
  QString text = shown == 1 ? u"1 recipient"_s : u"%1 recipients"_s.arg(shown);
  // Behind a template the box may show others than those who get the message; nobody should miss that.
  if (!recipients.listsAgree()) {
    text += recipients.numbers().isEmpty()
                ? u" shown, but none selected to send to"_s
                : u" shown, sending to the %1 selected before"_s.arg(recipients.numbers().size());
  }
  if (repeated == 0) return text;
  return text + (repeated == 1 ? u", 1 number occurs more than once"_s
                               : u", %1 numbers occur more than once"_s.arg(repeated));
}

}  // namespace

int RecipientsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(recipients_.entries().size());
}

QVariant RecipientsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || role != Qt::DisplayRole) return {};
  return recipients_.entries()[static_cast<std::size_t>(index.row())].text();
}

RecipientsPanel::RecipientsPanel(const AddressBook& book, Notifier& notifier, SelectionMode mode,
                                 RecipientNumber number, QWidget* parent)
    : QWidget(parent), book_(book), notifier_(notifier), mode_(mode), number_(number) {
  setObjectName(u"recipientsPanel"_s);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(createBox(), 1);
  layout->addWidget(createButtons());
}

QWidget* RecipientsPanel::createBox() {
  auto* area = new QWidget(this);
  box_ = new QListView(area);
  box_->setObjectName(u"contactsBox"_s);
  box_->setAccessibleName(u"Contacts"_s);
  box_->setModel(&model_);
  box_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  box_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  box_->setUniformItemSizes(true);
  styleList(*box_);
  auto* removal = new QShortcut(QKeySequence(QKeySequence::Delete), box_);
  removal->setContext(Qt::WidgetShortcut);
  connect(removal, &QShortcut::activated, this, &RecipientsPanel::removeHighlighted);

  auto* label = new QLabel(u"&Contacts"_s, area);
  label->setBuddy(box_);
  auto* layout = new QVBoxLayout(area);
  layout->setContentsMargins({});
  layout->addWidget(label);
  layout->addWidget(box_, 1);
  layout->addLayout(createCountLine(area));
  return area;
}

QLayout* RecipientsPanel::createCountLine(QWidget* area) {
  count_ = new QLabel(area);
  count_->setObjectName(u"recipientCount"_s);
  repeats_ = new HyperlinkLabel(u"Remove repeats"_s, {}, area);
  repeats_->setObjectName(u"removeRepeats"_s);
  connect(repeats_, &HyperlinkLabel::clicked, this, &RecipientsPanel::removeRepeats);
  connect(&model_, &RecipientsModel::modelReset, this, &RecipientsPanel::showCount);
  showCount();
  return lineWithLink(*count_, *repeats_);
}

QWidget* RecipientsPanel::createButtons() {
  auto* area = new QWidget(this);
  auto* layout = new QVBoxLayout(area);
  layout->setContentsMargins({});
  layout->addSpacing(area->fontMetrics().height() + layout->spacing());
  const auto button = [&](const QString& text, const QString& name, auto action) {
    auto* created = new PictureButton(text, area);
    created->setObjectName(name);
    connect(created, &PictureButton::clicked, this, action);
    layout->addWidget(created);
    return created;
  };
  auto* add = button(u"&Add / Import Contacts"_s, u"addContactsButton"_s, [] {});
  connect(add, &PictureButton::clicked, this, [this, add] { Q_EMIT contactsToAdd(*add); });
  select_ = button(u"&Select Contacts..."_s, u"selectContactsButton"_s, [this] { selectContacts(); });
  button(u"Clear"_s, u"clearContactsButton"_s, &RecipientsPanel::clearEntries);
  layout->addStretch(1);
  return area;
}

void RecipientsPanel::clearEntries() {
  model_.update([](Recipients& recipients) { recipients.clearEntries(); });
}

void RecipientsPanel::setEntries(const QString& displayList) {
  model_.update([&displayList](Recipients& recipients) { recipients.setEntries(displayList); });
}

void RecipientsPanel::showCount() {
  const int repeated = recipients().repeatedNumberCount();
  const QString summary = recipientsSummary(recipients(), repeated);
  count_->setText(summary);
  count_->setToolTip(summary);  // a narrow window has no room for all of it
  repeats_->setVisible(repeated > 0 && recipients().haveEqualCounts());
}

void RecipientsPanel::removeRepeats() {
  model_.update([](Recipients& recipients) { recipients.removeRepeats(); });
  box_->setFocus(Qt::OtherFocusReason);  // the link is gone now
}

void RecipientsPanel::selectContacts(const QStringList& alsoTicked) {
  CSelectContactsDlg dialog(book_, mode_, contactsOfBoxAnd(alsoTicked), notifier_, this);
  if (dialog.exec() == QDialog::Accepted) take(dialog.selection());
}

void RecipientsPanel::removeHighlighted() {
  std::vector<int> rows;
  for (const QModelIndex& index : box_->selectionModel()->selectedRows()) rows.push_back(index.row());
  if (rows.empty()) {
    notifier_.error(messaging_texts::nothingHighlighted());
    return;
  }
  if (!notifier_.confirm(messaging_texts::confirmRemoval())) return;
  model_.update([&](Recipients& recipients) { recipients.remove(rows); });
  // A long list stays where the user was at work; nothing is highlighted, so that a further <DEL> asks anew.
  const int place = std::min(*std::min_element(rows.begin(), rows.end()), model_.rowCount() - 1);
  box_->selectionModel()->setCurrentIndex(model_.index(place), QItemSelectionModel::NoUpdate);
}

ContactSelection RecipientsPanel::contactsOfBoxAnd(QStringList names) const {
  for (const Recipient& entry : recipients().entries()) names.append(entry.name);
  ContactSelection::Contacts contacts;
  for (const QString& name : names)
    if (const ContactRecord* contact = book_.findContact(name)) contacts.push_back(contact);
  return ContactSelection(std::move(contacts));
}

void RecipientsPanel::take(const ContactSelection& selection) {
  const std::vector<const ContactRecord*> contacts(selection.begin(), selection.end());
  QStringList rejected;
  model_.update([&](Recipients& recipients) { rejected = recipients.select(contacts, number_); });
  if (rejected.isEmpty()) return;
  notifier_.error(messaging_texts::badNumbersRemoved() + rejected.join(u", "_s));
}

}  // namespace parlexo
