// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QString>

#include "addressbook/core/contact_selection.h"
#include "contacts/contact_record.h"

namespace parlexo {

/// A table of contacts: name, numbers, and which message types they can receive. Only pointers are stored,
/// which keeps a list of 100,000 contacts cheap. Contacts must be removed from the model before they are
/// deleted.
class ContactRowsModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { NameColumn, PhoneColumn, SmsColumn, MediaColumn, FaxColumn, columnTotal };

  using QAbstractTableModel::QAbstractTableModel;

  /// Shows these contacts in the given order. Does not reset the model, which would clear the selection, if
  /// the contacts are the same as before.
  void setContacts(ContactSelection::Contacts contacts);

  [[nodiscard]] const ContactSelection::Contacts& contacts() const { return contacts_; }
  [[nodiscard]] const ContactRecord& contact(int row) const {
    return *contacts_[static_cast<std::size_t>(row)];
  }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  [[nodiscard]] QString cellText(const ContactRecord& contact, Column column) const;

  // Translated once, as every painted row needs them.
  const QString yes_ = tr("yes");
  const QString no_ = tr("no");
  ContactSelection::Contacts contacts_;
};

}  // namespace parlexo
