// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/add_contacts_menu.h"

#include <QCoreApplication>
#include <QMenu>

#include "addressbook/core/contacts_flow.h"
#include "addressbook/screens/contact_details_dlg.h"
#include "addressbook/screens/import_contacts_dlg.h"
#include "contacts/address_book.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

std::optional<QStringList> addContact(const AddressBookServices& services, QWidget* window) {
  const auto isTaken = [&](const QString& name) { return services.book.findContact(name) != nullptr; };
  CContactDetailsDlg dialog({}, isTaken, services.notifier, window);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  ContactsFlow(services).addContact(dialog.contact(), QLatin1String(personalContactsName));
  return QStringList(dialog.contact().name);
}

std::optional<QStringList> importContacts(const AddressBookServices& services, QWidget* window) {
  CImportContactsDlg dialog(services, QLatin1String(personalContactsName), window);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.importedNames();
}

}  // namespace

std::optional<QStringList> addOrImportContacts(const AddressBookServices& services, QWidget& button) {
  QMenu menu(&button);
  menu.setObjectName(u"addContactsMenu"_s);
  const QAction* add = menu.addAction(QCoreApplication::translate("AddContactsMenu", "&New Contact..."));
  const QAction* import = menu.addAction(QCoreApplication::translate("AddContactsMenu", "&Import..."));
  const QAction* chosen = menu.exec(button.mapToGlobal(button.rect().bottomLeft()));
  if (chosen == add) return addContact(services, button.window());
  if (chosen == import) return importContacts(services, button.window());
  return std::nullopt;
}

}  // namespace parlexo
