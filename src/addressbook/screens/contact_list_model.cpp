#include "addressbook/screens/contact_list_model.h"

#include "addressbook/core/contact_selection.h"

namespace parlexo {

ContactListModel::ContactListModel(SelectionLists& lists, const QString& mode, QObject* parent)
    : CheckListModel({QStringLiteral("Select"), QStringLiteral("Name"), QStringLiteral("Phone")}, parent),
      lists_(lists),
      showsFax_(showsFaxNumbers(mode)) {}

int ContactListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : lists_.contactCount();
}

QString ContactListModel::cell(int row, int column) const {
  const ContactRecord& contact = lists_.contact(row);
  if (column == NameColumn) return contact.name;
  if (column == NumberColumn) return showsFax_ ? contact.fax : contact.phone;
  return {};
}

bool ContactListModel::isTicked(int row) const {
  return lists_.isContactTicked(row);
}

void ContactListModel::setTicked(int row, bool ticked) {
  lists_.setContactTicked(row, ticked);
}

}  // namespace parlexo
