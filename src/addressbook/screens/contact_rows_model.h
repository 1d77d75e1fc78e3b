// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QAbstractTableModel>

#include "addressbook/core/contact_selection.h"
#include "contacts/contact_record.h"

namespace parlexo {

/// Contacts as rows with name, numbers and what they can receive. It keeps pointers alone, so that 100,000
/// contacts cost next to nothing until they are painted; whoever deletes a contact takes it out before.
class ContactRowsModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { NameColumn, PhoneColumn, SmsColumn, MediaColumn, FaxColumn, columnTotal };

  using QAbstractTableModel::QAbstractTableModel;

  /// Shows these contacts, in this order. The same contacts as before keep selection and scroll position.
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
  ContactSelection::Contacts contacts_;
};

}  // namespace parlexo
