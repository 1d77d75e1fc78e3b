// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/import_columns.h"

#include <algorithm>
#include <set>
#include <utility>

#include <QCoreApplication>
#include <QHash>
#include <QLatin1String>

#include "contacts/import/number_format.h"

namespace parlexo {

namespace {

/// Returns the letters and digits in lower case: "E-Mail " and "e_mail" are the same heading.
QString plainHeading(QStringView heading) {
  QString plain;
  for (const QChar c : heading)
    if (c.isLetterOrNumber()) plain += c.toLower();
  return plain;
}

using Headings = std::vector<const char*>;

/// The headings used by address books, phones and mail programs.
const std::vector<std::pair<ImportField, Headings>>& knownHeadings() {
  static const std::vector<std::pair<ImportField, Headings>> known = {
      {ImportField::Name, {"name", "fullname", "contactname", "displayname", "contact"}},
      {ImportField::FirstName, {"firstname", "givenname", "first", "forename"}},
      {ImportField::Surname, {"surname", "lastname", "familyname", "last"}},
      {ImportField::ClientId,
       {"clientid", "clientno", "clientnumber", "customerid", "customerno", "customernumber", "id"}},
      {ImportField::Phone,
       {"phone", "phonenumber", "mobile", "mobilephone", "mobilenumber", "mobileno", "cell", "cellphone",
        "telephone", "telephonenumber", "tel", "number", "msisdn", "phone1", "phone1value"}},
      {ImportField::Extra1, {"extra1"}},
      {ImportField::Extra2, {"extra2"}},
      {ImportField::Extra3, {"extra3"}},
      {ImportField::Extra4, {"extra4"}},
      {ImportField::Extra5, {"extra5"}},
      {ImportField::Extra6, {"extra6"}},
      {ImportField::Fax, {"fax", "faxnumber", "businessfax"}},
      {ImportField::Email, {"email", "emailaddress", "mail", "email1value"}},
      {ImportField::SupportsSms, {"supportssms", "sms"}},
      {ImportField::SupportsMedia, {"supportsmedia", "media", "mms"}},
  };
  return known;
}

ImportField parseHeading(QStringView heading) {
  static const QHash<QString, ImportField> fields = [] {
    QHash<QString, ImportField> built;
    for (const auto& [field, headings] : knownHeadings())
      for (const char* known : headings) built.insert(QString::fromLatin1(known), field);
    return built;
  }();
  return fields.value(plainHeading(heading), ImportField::Nothing);
}

bool rowHasNumber(const Sheet& sheet, int row) {
  for (int column = 0; column < sheet.cellCount(row); ++column)
    if (isPossiblePhoneNumber(sheet.cell(row, column))) return true;
  return false;
}

std::size_t knownHeadingsIn(const Sheet& sheet, int row) {
  std::set<ImportField> fields;
  for (int column = 0; column < sheet.cellCount(row); ++column)
    fields.insert(parseHeading(sheet.cell(row, column)));
  fields.erase(ImportField::Nothing);
  return fields.size();
}

int filledCells(const Sheet& sheet, int row) {
  int filled = 0;
  for (int column = 0; column < sheet.cellCount(row); ++column)
    if (!sheet.cell(row, column).trimmed().isEmpty()) ++filled;
  return filled;
}

bool isTitle(const Sheet& sheet, int row) {
  return filledCells(sheet, row) <= 1 && !rowHasNumber(sheet, row);
}

/// Finds unknown headings: the last row before the first number, if all rows above it are titles.
std::optional<int> headingRowByContent(const Sheet& sheet, int rows) {
  int row = 0;
  while (row + 1 < rows && isTitle(sheet, row) && !rowHasNumber(sheet, row + 1)) ++row;
  // A row with one cell is only a title if headings follow.
  if (row > 0 && filledCells(sheet, row) < 2) row = 0;
  if (row + 1 < rows && !rowHasNumber(sheet, row) && rowHasNumber(sheet, row + 1)) return row;
  return std::nullopt;
}

/// Maps the first column with a phone number in the first row, and the first other column as names.
ImportColumns columnsByContent(const Sheet& sheet) {
  ImportColumns columns(static_cast<std::size_t>(sheet.columnCount()), ImportField::Nothing);
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const bool isNumber = isPossiblePhoneNumber(sheet.cell(0, static_cast<int>(column)));
    const ImportField field = isNumber ? ImportField::Phone : ImportField::Name;
    if (std::count(columns.begin(), columns.end(), field) == 0) columns[column] = field;
  }
  return columns;
}

const char* headingText(ImportField field) {
  switch (field) {
    case ImportField::Nothing:
      return QT_TRANSLATE_NOOP("ImportField", "(not imported)");
    case ImportField::Name:
      return QT_TRANSLATE_NOOP("ImportField", "Name");
    case ImportField::FirstName:
      return QT_TRANSLATE_NOOP("ImportField", "First Name");
    case ImportField::Surname:
      return QT_TRANSLATE_NOOP("ImportField", "Surname");
    case ImportField::ClientId:
      return QT_TRANSLATE_NOOP("ImportField", "Client Id.");
    case ImportField::Phone:
      return QT_TRANSLATE_NOOP("ImportField", "Phone Number");
    case ImportField::Extra1:
      return QT_TRANSLATE_NOOP("ImportField", "Extra 1");
    case ImportField::Extra2:
      return QT_TRANSLATE_NOOP("ImportField", "Extra 2");
    case ImportField::Extra3:
      return QT_TRANSLATE_NOOP("ImportField", "Extra 3");
    case ImportField::Extra4:
      return QT_TRANSLATE_NOOP("ImportField", "Extra 4");
    case ImportField::Extra5:
      return QT_TRANSLATE_NOOP("ImportField", "Extra 5");
    case ImportField::Extra6:
      return QT_TRANSLATE_NOOP("ImportField", "Extra 6");
    case ImportField::Fax:
      return QT_TRANSLATE_NOOP("ImportField", "Fax");
    case ImportField::Email:
      return QT_TRANSLATE_NOOP("ImportField", "Email");
    case ImportField::SupportsSms:
      return QT_TRANSLATE_NOOP("ImportField", "Supports SMS");
    case ImportField::SupportsMedia:
      return QT_TRANSLATE_NOOP("ImportField", "Supports Media");
  }
  Q_UNREACHABLE();
}

}  // namespace

const std::vector<ImportField>& importFields() {
  static const std::vector<ImportField> all = [] {
    std::vector<ImportField> fields = {ImportField::Nothing};
    for (const auto& [field, headings] : knownHeadings()) fields.push_back(field);
    return fields;
  }();
  return all;
}

QString fieldHeading(ImportField field) {
  return QLatin1String(headingText(field));
}

QString fieldLabel(ImportField field) {
  return QCoreApplication::translate("ImportField", headingText(field));
}

std::optional<int> findHeadingRow(const Sheet& sheet) {
  constexpr int mostTitles = 10;
  const int rows = std::min(sheet.rowCount(), mostTitles + 2);
  // A single known word may be a title or a name; two are headings.
  for (int row = 0; row < std::min(rows, mostTitles + 1); ++row)
    if (knownHeadingsIn(sheet, row) >= 2) return row;
  if (rows > 0 && knownHeadingsIn(sheet, 0) > 0) return 0;
  return headingRowByContent(sheet, rows);
}

ImportColumns suggestColumns(const Sheet& sheet, std::optional<int> headingRow) {
  if (sheet.rowCount() == 0) return {};
  if (!headingRow) return columnsByContent(sheet);
  ImportColumns columns(static_cast<std::size_t>(sheet.columnCount()), ImportField::Nothing);
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const ImportField field = parseHeading(sheet.cell(*headingRow, static_cast<int>(column)));
    if (std::count(columns.begin(), columns.end(), field) == 0) columns[column] = field;
  }
  return columns;
}

}  // namespace parlexo
