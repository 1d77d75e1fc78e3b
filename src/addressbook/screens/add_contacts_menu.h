// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QStringList>

#include "addressbook/core/addressbook_services.h"

class QWidget;

namespace parlexo {

/// Lets the user add a contact or import contacts, from a menu below `button`; they join "My Personal
/// Contacts". Returns their names, or nothing when the user left it at looking. A name may stand for no
/// contact when it could not be saved, which the user has been told.
[[nodiscard]] std::optional<QStringList> addOrImportContacts(const AddressBookServices& services,
                                                             QWidget& button);

}  // namespace parlexo
