// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/import_columns.h"

#include <algorithm>
#include <set>

#include <QHash>

#include "contacts/import/number_format.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

/// Letters and digits in lower case: "E-Mail " and "e_mail" are the same heading.
QString plainHeading(QStringView heading) {
  QString plain;
  for (const QChar c : heading)
    if (c.isLetterOrNumber()) plain += c.toLower();
  return plain;
}

struct Headings {
  ImportField field;
  std::vector<const char*> names;
};

/// The headings that address books, phones and mail programs write.
const std::vector<Headings>& knownHeadings() {
  static const std::vector<Headings> known = {
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

ImportField fieldOfHeading(QStringView heading) {
  static const QHash<QString, ImportField> fields = [] {
    QHash<QString, ImportField> built;
    for (const Headings& known : knownHeadings())
      for (const char* name : known.names) built.insert(QString::fromLatin1(name), known.field);
    return built;
  }();
  return fields.value(plainHeading(heading), ImportField::Nothing);
}

bool rowHasNumber(const Sheet& sheet, int row) {
  for (int column = 0; column < sheet.cellCount(row); ++column)
    if (looksLikePhoneNumber(sheet.cell(row, column))) return true;
  return false;
}

std::size_t knownHeadingsIn(const Sheet& sheet, int row) {
  std::set<ImportField> fields;
  for (int column = 0; column < sheet.cellCount(row); ++column)
    fields.insert(fieldOfHeading(sheet.cell(row, column)));
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

/// Unknown headings: the last row before the first number, when all rows above it are titles.
std::optional<int> headingRowByContent(const Sheet& sheet, int rows) {
  int row = 0;
  while (row + 1 < rows && isTitle(sheet, row) && !rowHasNumber(sheet, row + 1)) ++row;
  // One row of one cell is a title only when there are headings below it.
  if (row > 0 && filledCells(sheet, row) < 2) row = 0;
  if (row + 1 < rows && !rowHasNumber(sheet, row) && rowHasNumber(sheet, row + 1)) return row;
  return std::nullopt;
}

/// Without headings: the first column with phone numbers, and the first other one for the names.
ImportColumns columnsByContent(const Sheet& sheet) {
  ImportColumns columns(static_cast<std::size_t>(sheet.columnCount()), ImportField::Nothing);
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const bool isNumber = looksLikePhoneNumber(sheet.cell(0, static_cast<int>(column)));
    const ImportField field = isNumber ? ImportField::Phone : ImportField::Name;
    if (std::count(columns.begin(), columns.end(), field) == 0) columns[column] = field;
  }
  return columns;
}

}  // namespace

const std::vector<ImportField>& importFields() {
  static const std::vector<ImportField> all = [] {
    std::vector<ImportField> fields = {ImportField::Nothing};
    for (const Headings& known : knownHeadings()) fields.push_back(known.field);
    return fields;
  }();
  return all;
}

QString fieldLabel(ImportField field) {
  switch (field) {
    case ImportField::Nothing:
      return u"(not imported)"_s;
    case ImportField::Name:
      return u"Name"_s;
    case ImportField::FirstName:
      return u"First Name"_s;
    case ImportField::Surname:
      return u"Surname"_s;
    case ImportField::ClientId:
      return u"Client Id."_s;
    case ImportField::Phone:
      return u"Phone Number"_s;
    case ImportField::Extra1:
      return u"Extra 1"_s;
    case ImportField::Extra2:
      return u"Extra 2"_s;
    case ImportField::Extra3:
      return u"Extra 3"_s;
    case ImportField::Extra4:
      return u"Extra 4"_s;
    case ImportField::Extra5:
      return u"Extra 5"_s;
    case ImportField::Extra6:
      return u"Extra 6"_s;
    case ImportField::Fax:
      return u"Fax"_s;
    case ImportField::Email:
      return u"Email"_s;
    case ImportField::SupportsSms:
      return u"Supports SMS"_s;
    case ImportField::SupportsMedia:
      return u"Supports Media"_s;
  }
  Q_UNREACHABLE();
}

std::optional<int> findHeadingRow(const Sheet& sheet) {
  constexpr int mostTitles = 10;
  const int rows = std::min(sheet.rowCount(), mostTitles + 2);
  // One known word may be a title or a name; two are headings.
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
    const ImportField field = fieldOfHeading(sheet.cell(*headingRow, static_cast<int>(column)));
    if (std::count(columns.begin(), columns.end(), field) == 0) columns[column] = field;
  }
  return columns;
}

}  // namespace parlexo
