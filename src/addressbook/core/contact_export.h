// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "addressbook/core/contact_folder.h"
#include "addressbook/core/contact_selection.h"
#include "base/csv_writer.h"

namespace parlexo {

/// The contacts as a table with all their fields and the headings that the import knows, so that it reads
/// them back unchanged.
[[nodiscard]] CsvWriter contactsAsCsv(const ContactSelection::Contacts& contacts);

/// What a file with the contacts of `folder` is best called: its name, with "_" for every character that no
/// file system likes.
[[nodiscard]] QString exportName(const ContactFolder& folder);

}  // namespace parlexo
