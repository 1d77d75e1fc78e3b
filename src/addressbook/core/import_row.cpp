// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/import_row.h"

#include <algorithm>
#include <array>

#include <QStringList>

#include "addressbook/core/contact_form.h"
#include "base/code_page.h"
#include "contacts/contact_file_format.h"
#include "contacts/phone_number.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

/// Converts a cell to the text of a contact's field: one line of composed characters. Removes or replaces
/// invisible marks, spaces and dashes that are not in the code page, which would become "?" otherwise.
QString fieldText(QStringView cell) {
  QString text;
  for (const QChar c : cell.toString().normalized(QString::NormalizationForm_C)) {
    const char16_t unit = c.unicode();
    const bool isDirectionMark = unit == 0x200E || unit == 0x200F || (unit >= 0x202A && unit <= 0x202E) ||
                                 (unit >= 0x2066 && unit <= 0x2069);
    if (isDirectionMark) continue;
    const bool isLost = unit > 0x7F && !fitsCodePage(QStringView(&c, 1));
    if (c.category() == QChar::Other_Control || (isLost && c.category() == QChar::Separator_Space))
      text += u' ';
    else if (isLost && (c.category() == QChar::Punctuation_Dash || unit == 0x2212))
      text += u'-';
    else
      text += c;
  }
  return text.trimmed();
}

struct RowTexts {
  std::array<QString, static_cast<std::size_t>(ImportField::SupportsMedia) + 1> values;

  [[nodiscard]] const QString& operator[](ImportField field) const {
    return values[static_cast<std::size_t>(field)];
  }
};

RowTexts readTexts(const Sheet& sheet, int row, const ImportColumns& columns) {
  RowTexts texts;
  for (std::size_t column = 0; column < columns.size(); ++column)
    if (columns[column] != ImportField::Nothing)
      texts.values[static_cast<std::size_t>(columns[column])] =
          fieldText(sheet.cell(row, static_cast<int>(column)));
  return texts;
}

QString contactName(const RowTexts& texts, const ImportPlan& plan) {
  const QString& whole = texts[ImportField::Name];
  // If there is a column of first names, "Name" is the full name.
  const bool isFull = !whole.isEmpty() && plan.maps(ImportField::FirstName);
  QString name = whole.isEmpty() ? texts[ImportField::FirstName] : whole;
  if (!isFull && !texts[ImportField::Surname].isEmpty()) {
    if (!name.isEmpty()) name += u' ';
    name += texts[ImportField::Surname];
  }
  if (!name.isEmpty() && !texts[ImportField::ClientId].isEmpty())
    name += u" ("_s + texts[ImportField::ClientId] + u')';
  return name;
}

/// Returns "Y" or "N", or an empty string for anything else.
QString parseFlag(const QString& text) {
  for (const char* yes : {"y", "yes", "true", "1", "x"})
    if (text.compare(QLatin1String(yes), Qt::CaseInsensitive) == 0) return u"Y"_s;
  for (const char* no : {"n", "no", "false", "0"})
    if (text.compare(QLatin1String(no), Qt::CaseInsensitive) == 0) return u"N"_s;
  return {};
}

QString nameRefusal(const QString& name) {
  if (name.isEmpty()) return ImportRow::tr("The row has no name.");
  if (!fitsCodePage(name))
    return ImportRow::tr("The name \"%1\" has characters that can't be stored.").arg(name);
  // Another program has lost the characters. Different names would become the same one.
  if (name.contains(u'?') &&
      std::none_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); }))
    return ImportRow::tr("The name has no letter or digit that the address book can keep.");
  if (toCodePage(name).size() > nameWidth)
    return ImportRow::tr("The name is longer than %1 characters.").arg(nameWidth);
  return {};
}

QString validationError(const ContactRecord& contact, const PhoneNumber& phone, const PhoneNumber& fax) {
  if (QString refusal = nameRefusal(contact.name); !refusal.isEmpty()) return refusal;
  if (contact.phone.isEmpty() && contact.fax.isEmpty()) return ImportRow::tr("The row has no number.");
  for (const PhoneNumber& number : {phone, fax})
    if (!number.problemText().isEmpty()) return number.problemText();
  // The rules for typed contacts apply too.
  const auto problem = ContactForm({}, [](const QString&) { return false; }).apply(contact);
  return problem ? problem->text : QString();
}

/// Removes an address that is invalid or too long for the file. Returns a remark in this case.
QString checkEmail(QString& email) {
  if (email.isEmpty()) return {};
  QString remark;
  if (!isEmailAddress(email))
    remark = ImportRow::tr("The invalid e-mail address \"%1\" is left out.").arg(email);
  else if (toCodePage(email).size() > emailWidth)
    remark =
        ImportRow::tr("The e-mail address is longer than %1 characters and is left out.").arg(emailWidth);
  if (!remark.isEmpty()) email.clear();
  return remark;
}

ImportField extraField(std::size_t number) {
  return static_cast<ImportField>(static_cast<std::size_t>(ImportField::Extra1) + number);
}

/// Truncates an Extra field to the width of the file's field. Returns a remark in this case.
QString checkExtra(QString& value, std::size_t number) {
  if (toCodePage(value).size() <= extraWidth) return {};
  value.truncate(extraWidth);  // a character has at least one byte
  while (toCodePage(value).size() > extraWidth || value.back().isHighSurrogate()) value.chop(1);
  return ImportRow::tr("%1 is cut to %2 characters.").arg(fieldLabel(extraField(number))).arg(extraWidth);
}

/// A contact with only a fax number can't receive SMS, regardless of the default of the import.
void disableSmsWithoutPhone(ContactRecord& contact) {
  if (contact.phone.isEmpty()) contact.supportsSms = u"N"_s;
}

QString yesOrNo(bool yes) {
  return yes ? u"Y"_s : u"N"_s;
}

}  // namespace

bool ImportPlan::maps(ImportField field) const {
  return std::find(columns.begin(), columns.end(), field) != columns.end();
}

ImportRow readImportRow(const Sheet& sheet, int row, const ImportPlan& plan) {
  const RowTexts texts = readTexts(sheet, row, plan.columns);
  const PhoneNumber phone = PhoneNumber::parse(texts[ImportField::Phone], plan.countryCode);
  const PhoneNumber fax = PhoneNumber::parse(texts[ImportField::Fax], plan.countryCode);
  ImportRow read;
  ContactRecord& contact = read.contact;
  contact.name = contactName(texts, plan);
  contact.phone = phone.text();
  contact.fax = fax.text();
  contact.supportsSms = parseFlag(texts[ImportField::SupportsSms]);
  contact.supportsMedia = parseFlag(texts[ImportField::SupportsMedia]);
  contact.email = throughCodePage(texts[ImportField::Email]);
  QStringList remarks = {checkEmail(contact.email)};
  read.omitsEmail = !remarks.first().isEmpty();
  for (std::size_t i = 0; i < contact.extra.size(); ++i) {
    contact.extra[i] = throughCodePage(texts[extraField(i)]);
    remarks << checkExtra(contact.extra[i], i);
  }
  remarks.removeAll(QString());
  read.remark = remarks.join(u' ');
  read.refusal = validationError(contact, phone, fax);
  return read;
}

ContactRecord newContact(const ImportRow& row, const ImportPlan& plan) {
  ContactRecord contact = row.contact;
  if (contact.supportsSms.isEmpty()) contact.supportsSms = yesOrNo(plan.supportsSms);
  if (contact.supportsMedia.isEmpty()) contact.supportsMedia = yesOrNo(plan.supportsMedia);
  disableSmsWithoutPhone(contact);
  return contact;
}

ContactRecord overwritten(const ContactRecord& existing, const ImportRow& row, const ImportPlan& plan) {
  ContactRecord contact = existing;
  if (plan.maps(ImportField::Phone)) contact.phone = row.contact.phone;
  if (plan.maps(ImportField::Fax)) contact.fax = row.contact.fax;
  if (plan.maps(ImportField::Email) && !row.omitsEmail) contact.email = row.contact.email;
  if (!row.contact.supportsSms.isEmpty()) contact.supportsSms = row.contact.supportsSms;
  if (!row.contact.supportsMedia.isEmpty()) contact.supportsMedia = row.contact.supportsMedia;
  for (std::size_t i = 0; i < contact.extra.size(); ++i)
    if (plan.maps(extraField(i))) contact.extra[i] = row.contact.extra[i];
  disableSmsWithoutPhone(contact);
  return contact;
}

}  // namespace parlexo
