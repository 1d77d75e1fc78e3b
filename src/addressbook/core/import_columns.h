#pragma once

#include <vector>

#include <QString>
#include <QStringView>

#include "contacts/import/sheet.h"

namespace parlexo {

/// What a column of an imported file becomes.
enum class ImportField {
  Nothing,
  Name,
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

/// Whether the first row seems to hold headings instead of a contact.
[[nodiscard]] bool hasHeadings(const Sheet& sheet);

/// The fields that the headings in the first row name; with `headings` false, the fields that the first
/// columns are likely to hold. No field comes twice.
[[nodiscard]] ImportColumns suggestColumns(const Sheet& sheet, bool headings);

}  // namespace parlexo
