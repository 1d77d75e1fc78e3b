// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "addressbook/core/contact_selection.h"
#include "contacts/contact_record.h"
#include "contacts/group_file.h"

namespace parlexo {

class AddressBook;

/// The contacts of `book` that a list in `mode` offers, in the order of every list: by name, ignoring case.
[[nodiscard]] ContactSelection::Contacts sortedContacts(const AddressBook& book, SelectionMode mode);

/// All groups of `book` in the same order.
[[nodiscard]] std::vector<const GroupFile*> sortedGroups(const AddressBook& book);

}  // namespace parlexo
