// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QCoreApplication>
#include <QString>

#include "addressbook/core/import_columns.h"
#include "contacts/contact_record.h"
#include "contacts/import/sheet.h"

namespace parlexo {

/// How the rows of a sheet are converted to contacts.
struct ImportPlan {
  ImportColumns columns;
  std::optional<int> headingRow = 0;  ///< contacts follow below it; without one, they begin in the first row
  QString countryCode;                ///< default for numbers without one, "+" and digits; may be empty
  bool supportsSms = true;            ///< default for rows with a phone number that don't specify it
  bool supportsMedia = false;
  QString group;  ///< to which the contacts are added; may be empty

  [[nodiscard]] bool maps(ImportField field) const;
  [[nodiscard]] int firstRow() const { return headingRow ? *headingRow + 1 : 0; }
};

/// The contact of one row, and problems found.
struct ImportRow {
  Q_DECLARE_TR_FUNCTIONS(ImportRow)

 public:
  ContactRecord contact;    ///< unmapped fields are empty
  QString refusal;          ///< why the row can't be imported; empty if it can
  QString remark;           ///< which values are omitted or truncated; may be empty
  bool omitsEmail = false;  ///< the address is invalid; an existing contact's address is preserved
};

/// Reads a row of `sheet`. Converts texts to the code page and back, as in all contacts. Rejects a name with
/// characters that are not in the code page, because different names could become the same one.
[[nodiscard]] ImportRow readImportRow(const Sheet& sheet, int row, const ImportPlan& plan);

/// Returns the new contact, with the defaults of the plan.
[[nodiscard]] ContactRecord newContact(const ImportRow& row, const ImportPlan& plan);

/// Returns `existing` with the values of the row in the mapped fields.
[[nodiscard]] ContactRecord overwritten(const ContactRecord& existing, const ImportRow& row,
                                        const ImportPlan& plan);

}  // namespace parlexo
