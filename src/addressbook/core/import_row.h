// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>

#include "addressbook/core/import_columns.h"
#include "contacts/contact_record.h"
#include "contacts/import/sheet.h"

namespace parlexo {

/// How the rows of a sheet become contacts.
struct ImportPlan {
  ImportColumns columns;
  std::optional<int> headingRow = 0;  ///< contacts begin below it; without one, in the first row
  QString countryCode;                ///< "+" and digits for numbers without one; may be empty
  bool supportsSms = true;            ///< for contacts with a phone number whose row does not say it
  bool supportsMedia = false;
  QString group;  ///< that the contacts join; may be empty

  [[nodiscard]] bool maps(ImportField field) const;
  [[nodiscard]] int firstRow() const { return headingRow ? *headingRow + 1 : 0; }
};

/// One row as the import understands it.
struct ImportRow {
  ContactRecord contact;        ///< fields that the plan does not map are empty
  QString refusal;              ///< why the row can't be imported; empty when it can
  QString remark;               ///< what is left out or cut although the row can be imported; may be empty
  bool leavesOutEmail = false;  ///< the row's address; that of an existing contact stays
};

/// Reads a row of `sheet`. Texts are passed through the code page, as in all contacts; a name that would lose
/// characters there is refused, as two people could end up as one contact.
[[nodiscard]] ImportRow readImportRow(const Sheet& sheet, int row, const ImportPlan& plan);

/// The new contact, with what the plan says for all contacts of this import.
[[nodiscard]] ContactRecord newContact(const ImportRow& row, const ImportPlan& plan);

/// `existing` with the values of the row in the fields that the plan maps.
[[nodiscard]] ContactRecord overwritten(const ContactRecord& existing, const ImportRow& row,
                                        const ImportPlan& plan);

}  // namespace parlexo
