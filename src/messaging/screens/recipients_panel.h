// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "addressbook/core/contact_selection.h"
#include "messaging/core/recipients.h"

class QLabel;
class QLayout;
class QListView;

namespace parlexo {

class AddressBook;
class HyperlinkLabel;
class Notifier;

/// The entries of a page's recipients, for a list view.
class RecipientsModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

  [[nodiscard]] const Recipients& recipients() const { return recipients_; }
  /// Runs `change` on the recipients and lets the views read them anew.
  template <class Change>
  void update(Change change) {
    beginResetModel();
    change(recipients_);
    endResetModel();
  }

 private:
  Recipients recipients_;
};

/// The Contacts box of a send page with its buttons: selecting contacts, removing highlighted entries with
/// Delete, clearing. A quiet line below tells how many there are and offers to remove repeated numbers.
class RecipientsPanel final : public QWidget {
  Q_OBJECT

 public:
  /// `mode` decides which contacts the selection offers, `number` which of their numbers counts. `book` and
  /// `notifier` must outlive the panel.
  RecipientsPanel(const AddressBook& book, Notifier& notifier, SelectionMode mode, RecipientNumber number,
                  QWidget* parent = nullptr);

  [[nodiscard]] const Recipients& recipients() const { return model_.recipients(); }

  /// Empties the box; the numbers stay, as Recipients says.
  void clearEntries();

  /// Fills the box from a display list, as a template holds it; the numbers stay, as Recipients says.
  void setEntries(const QString& displayList);

  /// The button that does selectContacts(): where missing recipients come from.
  [[nodiscard]] QWidget* selectButton() const { return select_; }
  /// Lets the user pick contacts and takes them over. Those in the box are ticked at first, and those named.
  void selectContacts(const QStringList& alsoTicked = {});
  /// Removes the highlighted entries after a question.
  void removeHighlighted();

 Q_SIGNALS:
  /// The user wants to add contacts to the address book, and asked for it with this button.
  void contactsToAdd(QWidget& button);

 private:
  [[nodiscard]] QWidget* createBox();
  [[nodiscard]] QLayout* createCountLine(QWidget* area);
  [[nodiscard]] QWidget* createButtons();
  void showCount();
  void removeRepeats();
  [[nodiscard]] ContactSelection contactsOfBoxAnd(QStringList names) const;
  void take(const ContactSelection& selection);

  const AddressBook& book_;
  Notifier& notifier_;
  SelectionMode mode_;
  RecipientNumber number_;
  RecipientsModel model_;
  QListView* box_ = nullptr;
  QLabel* count_ = nullptr;
  HyperlinkLabel* repeats_ = nullptr;
  QWidget* select_ = nullptr;
};

}  // namespace parlexo
