#include "addressbook/core/import_row.h"

#include <algorithm>
#include <array>

#include <QRegularExpression>

#include "addressbook/core/contact_form.h"
#include "addressbook/core/import_number.h"
#include "base/code_page.h"
#include "contacts/contact_file_format.h"

namespace parlexo {

namespace {

constexpr qsizetype longestNumber = 20;  // the width of its field on disk, plus sign included

/// A value as a field of a contact can hold it: one line.
QString fieldValue(QStringView cell) {
  QString value = cell.toString();
  for (QChar& c : value)
    if (c.category() == QChar::Other_Control) c = u' ';
  return throughCodePage(value).trimmed();
}

struct RowTexts {
  std::array<QString, static_cast<std::size_t>(ImportField::SupportsMedia) + 1> values;

  [[nodiscard]] const QString& operator[](ImportField field) const {
    return values[static_cast<std::size_t>(field)];
  }
};

RowTexts textsOf(const Sheet& sheet, int row, const ImportColumns& columns) {
  RowTexts texts;
  for (std::size_t column = 0; column < columns.size(); ++column)
    if (columns[column] != ImportField::Nothing)
      texts.values[static_cast<std::size_t>(columns[column])] =
          fieldValue(sheet.cell(row, static_cast<int>(column)));
  return texts;
}

QString nameOf(const RowTexts& texts) {
  QString name = texts[ImportField::Name];
  if (!name.isEmpty() && !texts[ImportField::Surname].isEmpty()) name += u' ';
  name += texts[ImportField::Surname];
  if (!name.isEmpty() && !texts[ImportField::ClientId].isEmpty())
    name += QStringLiteral(" (") + texts[ImportField::ClientId] + u')';
  return name;
}

/// "Y" or "N" where the cell says it, else empty.
QString flagOf(const QString& text) {
  for (const char* yes : {"y", "yes", "true", "1", "x"})
    if (text.compare(QLatin1String(yes), Qt::CaseInsensitive) == 0) return QStringLiteral("Y");
  for (const char* no : {"n", "no", "false", "0"})
    if (text.compare(QLatin1String(no), Qt::CaseInsensitive) == 0) return QStringLiteral("N");
  return {};
}

QString nameRefusal(const QString& name) {
  if (name.isEmpty()) return QStringLiteral("The row has no name.");
  // Names in a script that the code page lacks would all look alike.
  if (name.contains(u'?') &&
      std::none_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); }))
    return QStringLiteral("The name has no letter or digit that the address book can keep.");
  if (toCodePage(name).size() > nameWidth)
    return QStringLiteral("The name is longer than %1 characters.").arg(nameWidth);
  return {};
}

/// Whether digits were lost when a spreadsheet program saved the number as text: "6.1E+10".
bool isRounded(const QString& number) {
  static const QRegularExpression pattern(QStringLiteral(R"(^\+?[\d,]+E\+\d+$)"));
  return pattern.match(number).hasMatch();
}

/// What can be said of a number beyond that it is wrong; empty when there is nothing.
QString numberRefusal(const QString& number) {
  if (isRounded(number)) return QStringLiteral("A spreadsheet program has rounded the number.");
  if (number.size() > longestNumber)
    return QStringLiteral("The number %1 is longer than %2 characters.").arg(number).arg(longestNumber);
  const bool lacksCode =
      std::all_of(number.begin(), number.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
  if (lacksCode && !number.isEmpty()) return QStringLiteral("The number %1 has no country code.").arg(number);
  return {};
}

QString refusalOf(const ContactRecord& contact) {
  if (QString refusal = nameRefusal(contact.name); !refusal.isEmpty()) return refusal;
  if (contact.phone.isEmpty() && contact.fax.isEmpty()) return QStringLiteral("The row has no number.");
  for (const QString& number : {contact.phone, contact.fax})
    if (QString refusal = numberRefusal(number); !refusal.isEmpty()) return refusal;
  // Beyond that, what holds for contacts that are typed.
  const auto problem = ContactForm({}, [](const QString&) { return false; }).take(contact);
  return problem ? problem->text : QString();
}

ImportField extraField(std::size_t number) {
  return static_cast<ImportField>(static_cast<std::size_t>(ImportField::Extra1) + number);
}

QString yesOrNo(bool yes) {
  return yes ? QStringLiteral("Y") : QStringLiteral("N");
}

}  // namespace

bool ImportPlan::maps(ImportField field) const {
  return std::find(columns.begin(), columns.end(), field) != columns.end();
}

ImportRow readImportRow(const Sheet& sheet, int row, const ImportPlan& plan) {
  const RowTexts texts = textsOf(sheet, row, plan.columns);
  ImportRow read;
  ContactRecord& contact = read.contact;
  contact.name = nameOf(texts);
  contact.phone = internationalNumber(texts[ImportField::Phone], plan.countryCode);
  contact.fax = internationalNumber(texts[ImportField::Fax], plan.countryCode);
  contact.email = texts[ImportField::Email];
  contact.supportsSms = flagOf(texts[ImportField::SupportsSms]);
  contact.supportsMedia = flagOf(texts[ImportField::SupportsMedia]);
  for (std::size_t i = 0; i < contact.extra.size(); ++i) contact.extra[i] = texts[extraField(i)];
  read.refusal = refusalOf(contact);
  return read;
}

ContactRecord newContact(const ImportRow& row, const ImportPlan& plan) {
  ContactRecord contact = row.contact;
  if (contact.supportsSms.isEmpty()) contact.supportsSms = yesOrNo(plan.supportsSms);
  if (contact.supportsMedia.isEmpty()) contact.supportsMedia = yesOrNo(plan.supportsMedia);
  return contact;
}

ContactRecord overwritten(const ContactRecord& existing, const ImportRow& row, const ImportPlan& plan) {
  ContactRecord contact = existing;
  if (plan.maps(ImportField::Phone)) contact.phone = row.contact.phone;
  if (plan.maps(ImportField::Fax)) contact.fax = row.contact.fax;
  if (plan.maps(ImportField::Email)) contact.email = row.contact.email;
  if (!row.contact.supportsSms.isEmpty()) contact.supportsSms = row.contact.supportsSms;
  if (!row.contact.supportsMedia.isEmpty()) contact.supportsMedia = row.contact.supportsMedia;
  for (std::size_t i = 0; i < contact.extra.size(); ++i)
    if (plan.maps(extraField(i))) contact.extra[i] = row.contact.extra[i];
  return contact;
}

}  // namespace parlexo
