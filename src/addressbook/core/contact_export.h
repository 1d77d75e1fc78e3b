// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "addressbook/core/contact_index.h"
#include "addressbook/core/contact_selection.h"
#include "base/csv_writer.h"

namespace parlexo {

/// Returns a table of the contacts with all fields and with headings that the import recognises. An import
/// reads the contacts back unchanged.
[[nodiscard]] CsvWriter contactsAsCsv(const ContactSelection::Contacts& contacts);

/// Returns the suggested name of a file with the contacts of `folder`, without extension. Replaces characters
/// that file systems don't support by "_".
[[nodiscard]] QString exportName(const ContactFolder& folder);

}  // namespace parlexo
