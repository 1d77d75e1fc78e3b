// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/contact_rows_model.h"

#include <utility>

#include "addressbook/core/contact_selection.h"

namespace parlexo {

namespace {

using Column = ContactRowsModel::Column;

QString columnHeading(Column column) {
  switch (column) {
    case Column::NameColumn:
      return ContactRowsModel::tr("Name");
    case Column::PhoneColumn:
      return ContactRowsModel::tr("Phone");
    case Column::SmsColumn:
      return ContactRowsModel::tr("SMS");
    case Column::MediaColumn:
      return ContactRowsModel::tr("Media");
    case Column::FaxColumn:
      return ContactRowsModel::tr("Fax");
    case Column::columnTotal:
      break;
  }
  return {};
}

}  // namespace

QString ContactRowsModel::cellText(const ContactRecord& contact, Column column) const {
  switch (column) {
    case Column::NameColumn:
      return shownName(contact.name);
    case Column::PhoneColumn:
      return contact.phone;
    case Column::SmsColumn:
      return isEligible(contact, SelectionMode::Sms) ? yes_ : no_;
    case Column::MediaColumn:
      return isEligible(contact, SelectionMode::Media) ? yes_ : no_;
    case Column::FaxColumn:
      return contact.fax;
    case Column::columnTotal:
      break;
  }
  return {};
}

void ContactRowsModel::setContacts(ContactSelection::Contacts contacts) {
  if (contacts == contacts_) {
    if (!contacts_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnTotal - 1));
    return;
  }
  beginResetModel();
  contacts_ = std::move(contacts);
  endResetModel();
}

int ContactRowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(contacts_.size());
}

int ContactRowsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columnTotal;
}

QVariant ContactRowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return columnHeading(static_cast<Column>(section));
  if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

Qt::ItemFlags ContactRowsModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
}

QVariant ContactRowsModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  return cellText(contact(index.row()), static_cast<Column>(index.column()));
}

}  // namespace parlexo
