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

/// List model of a page's recipients.
class RecipientsModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

  [[nodiscard]] const Recipients& recipients() const { return recipients_; }
  /// Calls `change` with the recipients and resets the model.
  template <class Change>
  void update(Change change) {
    beginResetModel();
    change(recipients_);
    endResetModel();
  }

 private:
  Recipients recipients_;
};

/// The Contacts box of a send page with buttons to select contacts and to clear the box. Delete removes the
/// highlighted entries. A line below shows the count and a link that removes repeated numbers.
class RecipientsPanel final : public QWidget {
  Q_OBJECT

 public:
  /// `mode` determines which contacts can be selected, `number` which of their numbers is used. `book` and
  /// `notifier` must outlive the panel.
  RecipientsPanel(const AddressBook& book, Notifier& notifier, SelectionMode mode, RecipientNumber number,
                  QWidget* parent = nullptr);

  [[nodiscard]] const Recipients& recipients() const { return model_.recipients(); }

  /// Clears the box; the numbers stay (see Recipients).
  void clearEntries();

  /// Fills the box from a template's display list; the numbers stay (see Recipients).
  void setEntries(const QString& displayList);

  /// The button that opens the selection; focused if recipients are missing.
  [[nodiscard]] QWidget* selectButton() const { return select_; }
  /// Opens the selection dialog and applies its result. The contacts in the box and those named in
  /// `alsoTicked` are ticked initially.
  void selectContacts(const QStringList& alsoTicked = {});
  /// Removes the highlighted entries after a confirmation.
  void removeHighlighted();

 Q_SIGNALS:
  /// The user asked to add contacts to the address book by pressing `button`.
  void contactsToAdd(QWidget& button);

 private:
  [[nodiscard]] QWidget* createBox();
  [[nodiscard]] QLayout* createCountLine(QWidget* area);
  [[nodiscard]] QWidget* createButtons();
  [[nodiscard]] static QString summary(const Recipients& recipients, int repeatedCount);
  void showCount();
  void removeRepeats();
  /// The contacts in the box and those with the given names.
  [[nodiscard]] ContactSelection contactsToTick(QStringList names) const;
  void applySelection(const ContactSelection& selection);

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
