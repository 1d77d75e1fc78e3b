#pragma once

#include "addressbook/core/addressbook_services.h"

class QWidget;

namespace parlexo {

/// Lets the user add a contact or import contacts, from a menu below `button`; they join "My Personal
/// Contacts". Returns false when the user left it at looking.
[[nodiscard]] bool addOrImportContacts(const AddressBookServices& services, QWidget& button);

}  // namespace parlexo
