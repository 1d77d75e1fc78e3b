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

/// A cell as a field of a contact can hold it: one line of composed characters. Invisible marks, blanks and
/// dashes that the code page lacks are removed or replaced before they could become "?".
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

RowTexts textsOf(const Sheet& sheet, int row, const ImportColumns& columns) {
  RowTexts texts;
  for (std::size_t column = 0; column < columns.size(); ++column)
    if (columns[column] != ImportField::Nothing)
      texts.values[static_cast<std::size_t>(columns[column])] =
          fieldText(sheet.cell(row, static_cast<int>(column)));
  return texts;
}

QString nameOf(const RowTexts& texts, const ImportPlan& plan) {
  const QString& whole = texts[ImportField::Name];
  // Beside first names in a column of their own, "Name" is the full name.
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

/// "Y" or "N" where the cell says it, else empty.
QString flagOf(const QString& text) {
  for (const char* yes : {"y", "yes", "true", "1", "x"})
    if (text.compare(QLatin1String(yes), Qt::CaseInsensitive) == 0) return u"Y"_s;
  for (const char* no : {"n", "no", "false", "0"})
    if (text.compare(QLatin1String(no), Qt::CaseInsensitive) == 0) return u"N"_s;
  return {};
}

QString nameRefusal(const QString& name) {
  if (name.isEmpty()) return u"The row has no name."_s;
  if (!fitsCodePage(name)) return u"The name \"%1\" has characters that can't be stored."_s.arg(name);
  // Another program has lost them already: such names would all look alike.
  if (name.contains(u'?') &&
      std::none_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); }))
    return u"The name has no letter or digit that the address book can keep."_s;
  if (toCodePage(name).size() > nameWidth) return u"The name is longer than %1 characters."_s.arg(nameWidth);
  return {};
}

QString refusalOf(const ContactRecord& contact, const PhoneNumber& phone, const PhoneNumber& fax) {
  if (QString refusal = nameRefusal(contact.name); !refusal.isEmpty()) return refusal;
  if (contact.phone.isEmpty() && contact.fax.isEmpty()) return u"The row has no number."_s;
  for (const PhoneNumber& number : {phone, fax})
    if (!number.problemText().isEmpty()) return number.problemText();
  // Beyond that, what holds for contacts that are typed.
  const auto problem = ContactForm({}, [](const QString&) { return false; }).take(contact);
  return problem ? problem->text : QString();
}

/// Leaves out an address that the dialog would refuse or the file would cut. Returns what to say about it.
QString checkEmail(QString& email) {
  if (email.isEmpty()) return {};
  QString remark;
  if (!isEmailAddress(email))
    remark = u"The invalid e-mail address \"%1\" is left out."_s.arg(email);
  else if (toCodePage(email).size() > emailWidth)
    remark = u"The e-mail address is longer than %1 characters and is left out."_s.arg(emailWidth);
  if (!remark.isEmpty()) email.clear();
  return remark;
}

ImportField extraField(std::size_t number) {
  return static_cast<ImportField>(static_cast<std::size_t>(ImportField::Extra1) + number);
}

/// Cuts an extra field to what the file can hold. Returns what to say about it.
QString checkExtra(QString& value, std::size_t number) {
  if (toCodePage(value).size() <= extraWidth) return {};
  value.truncate(extraWidth);  // a character has at least one byte
  while (toCodePage(value).size() > extraWidth || value.back().isHighSurrogate()) value.chop(1);
  return u"%1 is cut to %2 characters."_s.arg(fieldLabel(extraField(number))).arg(extraWidth);
}

/// A fax machine alone gets no SMS, even when the other contacts of the import do.
void withdrawSmsWithoutPhone(ContactRecord& contact) {
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
  const RowTexts texts = textsOf(sheet, row, plan.columns);
  const PhoneNumber phone = PhoneNumber::parse(texts[ImportField::Phone], plan.countryCode);
  const PhoneNumber fax = PhoneNumber::parse(texts[ImportField::Fax], plan.countryCode);
  ImportRow read;
  ContactRecord& contact = read.contact;
  contact.name = nameOf(texts, plan);
  contact.phone = phone.text();
  contact.fax = fax.text();
  contact.supportsSms = flagOf(texts[ImportField::SupportsSms]);
  contact.supportsMedia = flagOf(texts[ImportField::SupportsMedia]);
  contact.email = throughCodePage(texts[ImportField::Email]);
  QStringList remarks = {checkEmail(contact.email)};
  read.leavesOutEmail = !remarks.first().isEmpty();
  for (std::size_t i = 0; i < contact.extra.size(); ++i) {
    contact.extra[i] = throughCodePage(texts[extraField(i)]);
    remarks << checkExtra(contact.extra[i], i);
  }
  remarks.removeAll(QString());
  read.remark = remarks.join(u' ');
  read.refusal = refusalOf(contact, phone, fax);
  return read;
}

ContactRecord newContact(const ImportRow& row, const ImportPlan& plan) {
  ContactRecord contact = row.contact;
  if (contact.supportsSms.isEmpty()) contact.supportsSms = yesOrNo(plan.supportsSms);
  if (contact.supportsMedia.isEmpty()) contact.supportsMedia = yesOrNo(plan.supportsMedia);
  withdrawSmsWithoutPhone(contact);
  return contact;
}

ContactRecord overwritten(const ContactRecord& existing, const ImportRow& row, const ImportPlan& plan) {
  ContactRecord contact = existing;
  if (plan.maps(ImportField::Phone)) contact.phone = row.contact.phone;
  if (plan.maps(ImportField::Fax)) contact.fax = row.contact.fax;
  if (plan.maps(ImportField::Email) && !row.leavesOutEmail) contact.email = row.contact.email;
  if (!row.contact.supportsSms.isEmpty()) contact.supportsSms = row.contact.supportsSms;
  if (!row.contact.supportsMedia.isEmpty()) contact.supportsMedia = row.contact.supportsMedia;
  for (std::size_t i = 0; i < contact.extra.size(); ++i)
    if (plan.maps(extraField(i))) contact.extra[i] = row.contact.extra[i];
  withdrawSmsWithoutPhone(contact);
  return contact;
}

}  // namespace parlexo
