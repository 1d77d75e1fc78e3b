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
#include "ui/hyperlink_label.h"
#include "ui/list_style.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

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
  box_->setAccessibleName(tr("Contacts"));
  box_->setModel(&model_);
  box_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  box_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  box_->setUniformItemSizes(true);
  styleList(*box_);
  auto* deleteKey = new QShortcut(QKeySequence(QKeySequence::Delete), box_);
  deleteKey->setContext(Qt::WidgetShortcut);
  connect(deleteKey, &QShortcut::activated, this, &RecipientsPanel::removeHighlighted);

  auto* label = new QLabel(tr("&Contacts"), area);
  label->setBuddy(box_);
  auto* layout = new QVBoxLayout(area);
  layout->setContentsMargins({});
  layout->addWidget(label);
  layout->addWidget(box_, 1);
  layout->addLayout(createCountLine(area));
  return area;
}

// Warns if the box shows other recipients than the numbers to send to, which a loaded template can cause.
QString RecipientsPanel::summary(const Recipients& recipients, int repeatedCount) {
  const std::size_t shown = recipients.entries().size();
  if (shown == 0) return tr("No recipients");
  QString text = shown == 1 ? tr("1 recipient") : tr("%1 recipients").arg(shown);
  if (!recipients.listsAgree()) {
    text = recipients.numbers().isEmpty()
               ? tr("%1 shown, but none selected to send to").arg(text)
               : tr("%1 shown, sending to the %2 selected before").arg(text).arg(recipients.numbers().size());
  }
  if (repeatedCount == 0) return text;
  return repeatedCount == 1 ? tr("%1, 1 number occurs more than once").arg(text)
                            : tr("%1, %2 numbers occur more than once").arg(text).arg(repeatedCount);
}

QLayout* RecipientsPanel::createCountLine(QWidget* area) {
  count_ = new QLabel(area);
  count_->setObjectName(u"recipientCount"_s);
  repeats_ = new HyperlinkLabel(tr("Remove repeats"), {}, area);
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
  auto* add = button(tr("&Add / Import Contacts"), u"addContactsButton"_s, [] {});
  connect(add, &PictureButton::clicked, this, [this, add] { Q_EMIT contactsToAdd(*add); });
  select_ = button(tr("&Select Contacts..."), u"selectContactsButton"_s, [this] { selectContacts(); });
  button(tr("Clear"), u"clearContactsButton"_s, &RecipientsPanel::clearEntries);
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
  const int repeatedCount = recipients().repeatedNumberCount();
  const QString text = summary(recipients(), repeatedCount);
  count_->setText(text);
  count_->setToolTip(text);  // the line is cut off in a narrow window
  repeats_->setVisible(repeatedCount > 0 && recipients().haveEqualCounts());
}

void RecipientsPanel::removeRepeats() {
  model_.update([](Recipients& recipients) { recipients.removeRepeats(); });
  box_->setFocus(Qt::OtherFocusReason);  // the link is hidden now
}

void RecipientsPanel::selectContacts(const QStringList& alsoTicked) {
  CSelectContactsDlg dialog(book_, mode_, contactsToTick(alsoTicked), notifier_, this);
  if (dialog.exec() == QDialog::Accepted) applySelection(dialog.selection());
}

void RecipientsPanel::removeHighlighted() {
  std::vector<int> rows;
  for (const QModelIndex& index : box_->selectionModel()->selectedRows()) rows.push_back(index.row());
  if (rows.empty()) {
    notifier_.error(tr("Can't delete the selected contacts as you have not selected one or more contacts"));
    return;
  }
  if (!notifier_.confirm(tr("Are you sure you want to delete the selected contacts?"))) return;
  model_.update([&](Recipients& recipients) { recipients.remove(rows); });
  // Preserves the scroll position of a long list. Nothing is highlighted, so pressing Delete again removes
  // nothing.
  const int row = std::min(*std::min_element(rows.begin(), rows.end()), model_.rowCount() - 1);
  box_->selectionModel()->setCurrentIndex(model_.index(row), QItemSelectionModel::NoUpdate);
}

ContactSelection RecipientsPanel::contactsToTick(QStringList names) const {
  for (const Recipient& entry : recipients().entries()) names.append(entry.name);
  ContactSelection::Contacts contacts;
  for (const QString& name : names)
    if (const ContactRecord* contact = book_.findContact(name)) contacts.push_back(contact);
  return ContactSelection(std::move(contacts));
}

void RecipientsPanel::applySelection(const ContactSelection& selection) {
  const std::vector<const ContactRecord*> contacts(selection.begin(), selection.end());
  QStringList rejected;
  model_.update([&](Recipients& recipients) { rejected = recipients.select(contacts, number_); });
  if (rejected.isEmpty()) return;
  notifier_.error(tr("The following Contacts had bad phone numbers and were removed:") +
                  rejected.join(u", "_s));
}

}  // namespace parlexo
