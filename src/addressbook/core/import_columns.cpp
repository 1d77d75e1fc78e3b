#include "addressbook/core/import_columns.h"

#include <algorithm>

#include <QHash>

namespace parlexo {

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
      {ImportField::Name,
       {"name", "fullname", "contactname", "displayname", "contact", "firstname", "givenname", "first",
        "forename"}},
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

bool looksLikeNumber(QStringView cell) {
  constexpr qsizetype fewestDigits = 6;
  qsizetype digits = 0;
  for (const QChar c : cell) {
    if (c.isLetter()) return false;
    if (c.isDigit()) ++digits;
  }
  return digits >= fewestDigits;
}

bool rowHasNumber(const Sheet& sheet, int row) {
  for (int column = 0; column < sheet.cellCount(row); ++column)
    if (looksLikeNumber(sheet.cell(row, column))) return true;
  return false;
}

/// Without headings: the first column with phone numbers, and the first other one for the names.
ImportColumns columnsByContent(const Sheet& sheet) {
  ImportColumns columns(static_cast<std::size_t>(sheet.columnCount()), ImportField::Nothing);
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const bool isNumber = looksLikeNumber(sheet.cell(0, static_cast<int>(column)));
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
      return QStringLiteral("(not imported)");
    case ImportField::Name:
      return QStringLiteral("Name");
    case ImportField::Surname:
      return QStringLiteral("Surname");
    case ImportField::ClientId:
      return QStringLiteral("Client Id.");
    case ImportField::Phone:
      return QStringLiteral("Phone Number");
    case ImportField::Extra1:
      return QStringLiteral("Extra 1");
    case ImportField::Extra2:
      return QStringLiteral("Extra 2");
    case ImportField::Extra3:
      return QStringLiteral("Extra 3");
    case ImportField::Extra4:
      return QStringLiteral("Extra 4");
    case ImportField::Extra5:
      return QStringLiteral("Extra 5");
    case ImportField::Extra6:
      return QStringLiteral("Extra 6");
    case ImportField::Fax:
      return QStringLiteral("Fax");
    case ImportField::Email:
      return QStringLiteral("Email");
    case ImportField::SupportsSms:
      return QStringLiteral("Supports SMS");
    case ImportField::SupportsMedia:
      return QStringLiteral("Supports Media");
  }
  Q_UNREACHABLE();
}

bool hasHeadings(const Sheet& sheet) {
  if (sheet.rowCount() == 0) return false;
  for (int column = 0; column < sheet.cellCount(0); ++column)
    if (fieldOfHeading(sheet.cell(0, column)) != ImportField::Nothing) return true;
  return sheet.rowCount() > 1 && !rowHasNumber(sheet, 0) && rowHasNumber(sheet, 1);
}

ImportColumns suggestColumns(const Sheet& sheet, bool headings) {
  if (sheet.rowCount() == 0) return {};
  if (!headings) return columnsByContent(sheet);
  ImportColumns columns(static_cast<std::size_t>(sheet.columnCount()), ImportField::Nothing);
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const ImportField field = fieldOfHeading(sheet.cell(0, static_cast<int>(column)));
    if (std::count(columns.begin(), columns.end(), field) == 0) columns[column] = field;
  }
  return columns;
}

}  // namespace parlexo
