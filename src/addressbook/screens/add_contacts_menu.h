// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QStringList>

#include "addressbook/core/addressbook_services.h"

class QWidget;

namespace parlexo {

/// Shows a menu below `button` to add a contact to the group "My Personal Contacts" or to import contacts
/// into it. Returns the names of the new contacts, or nullopt if the user cancelled. If a contact could not
/// be saved, which has been reported to the user, its name is returned all the same.
[[nodiscard]] std::optional<QStringList> addOrImportContacts(const AddressBookServices& services,
                                                             QWidget& button);

}  // namespace parlexo
