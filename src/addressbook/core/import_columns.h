// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include <QString>
#include <QStringView>

#include "contacts/import/sheet.h"

namespace parlexo {

/// What a column of an imported file becomes.
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

/// One field a column.
using ImportColumns = std::vector<ImportField>;

/// All fields, in the order in which the user is offered them.
[[nodiscard]] const std::vector<ImportField>& importFields();

/// The field's name for the user.
[[nodiscard]] QString fieldLabel(ImportField field);

/// The row that seems to hold headings, perhaps below title rows; nullopt when the first row is a contact.
[[nodiscard]] std::optional<int> findHeadingRow(const Sheet& sheet);

/// The fields that the headings in that row name; without one, the fields that the first columns are likely
/// to hold. No field comes twice.
[[nodiscard]] ImportColumns suggestColumns(const Sheet& sheet, std::optional<int> headingRow);

}  // namespace parlexo
