#include "addressbook/screens/add_contacts_menu.h"

#include <QMenu>

#include "addressbook/core/contacts_flow.h"
#include "addressbook/screens/contact_details_dlg.h"
#include "addressbook/screens/import_contacts_dlg.h"
#include "contacts/address_book.h"

namespace parlexo {

namespace {

bool addContact(const AddressBookServices& services, QWidget* window) {
  const auto isTaken = [&](const QString& name) { return services.book.findContact(name) != nullptr; };
  CContactDetailsDlg dialog({}, isTaken, services.notifier, window);
  if (dialog.exec() != QDialog::Accepted) return false;
  ContactsFlow(services).addContact(dialog.contact(), QLatin1String(personalContactsName));
  return true;
}

}  // namespace

bool addOrImportContacts(const AddressBookServices& services, QWidget& button) {
  QMenu menu(&button);
  menu.setObjectName(QStringLiteral("addContactsMenu"));
  const QAction* add = menu.addAction(QStringLiteral("&New Contact..."));
  const QAction* import = menu.addAction(QStringLiteral("&Import..."));
  const QAction* chosen = menu.exec(button.mapToGlobal(button.rect().bottomLeft()));
  if (chosen == add) return addContact(services, button.window());
  if (chosen != import) return false;
  return CImportContactsDlg(services, QLatin1String(personalContactsName), button.window()).exec() ==
         QDialog::Accepted;
}

}  // namespace parlexo
