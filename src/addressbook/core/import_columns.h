// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include <QString>
#include <QStringView>

#include "contacts/import/sheet.h"

namespace parlexo {

/// The contact field to which a column of an imported file is mapped.
enum class ImportField {
  Nothing,
  Name,
  FirstName,
  Surname,
  ClientId,
  Phone,
  Extra1,
  Extra2,
  Extra3,
  Extra4,
  Extra5,
  Extra6,
  Fax,
  Email,
  SupportsSms,
  SupportsMedia,
};

/// The field of each column.
using ImportColumns = std::vector<ImportField>;

/// All fields, in the order in which they are offered to the user.
[[nodiscard]] const std::vector<ImportField>& importFields();

/// The field's heading in exported files. Not translated, because the import must recognise it.
[[nodiscard]] QString fieldHeading(ImportField field);

/// The field's name for the user.
[[nodiscard]] QString fieldLabel(ImportField field);

/// Returns the row that probably contains headings, possibly below title rows, or nullopt if the first row is
/// a contact.
[[nodiscard]] std::optional<int> findHeadingRow(const Sheet& sheet);

/// Returns the fields according to the headings in `headingRow`. Without a heading row, guesses name and
/// phone number from the first row. No field occurs twice.
[[nodiscard]] ImportColumns suggestColumns(const Sheet& sheet, std::optional<int> headingRow);

}  // namespace parlexo
