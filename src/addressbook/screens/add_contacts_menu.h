// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QStringList>

#include "addressbook/core/addressbook_services.h"

class QWidget;

namespace parlexo {

/// Shows a menu below `button` to add a contact to the group "My Personal Contacts" or to import contacts
/// into it. Returns the names of the new contacts, or nullopt if the user cancelled. Includes contacts that
/// could not be saved; the errors have been reported to the user.
[[nodiscard]] std::optional<QStringList> addOrImportContacts(const AddressBookServices& services,
                                                             QWidget& button);

}  // namespace parlexo
