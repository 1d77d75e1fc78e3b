// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/contact_form.h"

#include <cstddef>
#include <utility>

#include <QRegularExpression>

#include "addressbook/core/contact_selection.h"
#include "base/code_page.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

using Field = ContactProblem::Field;

// The pattern must match the whole value, including white space.
bool matchesWhole(const QString& value, const QRegularExpression& pattern) {
  const QRegularExpressionMatch match = pattern.match(value);
  return match.hasMatch() && match.capturedLength() == value.size();
}

bool isInternationalNumber(const QString& value) {
  static const QRegularExpression pattern(uR"(\+\d{1,30})"_s);
  return matchesWhole(value, pattern);
}

}  // namespace

QString asContactText(const QString& typed) {
  QString text;
  for (const QChar character : typed)
    if (character.category() != QChar::Other_Control) text.append(character);
  return throughCodePage(text);
}

bool isEmailAddress(const QString& value) {
  static const QRegularExpression pattern(uR"(^[^@]+@([-\w]+\.)+[A-Za-z]{2,4}$)"_s);
  return matchesWhole(value, pattern);
}

ContactForm::ContactForm(ContactRecord contact, NameTest isNameTaken)
    : contact_(std::move(contact)), isNameTaken_(std::move(isNameTaken)), isNew_(contact_.name.isEmpty()) {}

bool ContactForm::supportsSms() const {
  return isEligible(contact_, SelectionMode::Sms);
}

bool ContactForm::supportsMedia() const {
  return isEligible(contact_, SelectionMode::Media);
}

std::optional<ContactProblem> ContactForm::apply(const ContactRecord& typed) {
  applyTexts(typed);
  if (auto problem = firstBadValue()) return problem;
  contact_.supportsMedia = typed.supportsMedia;
  contact_.supportsSms = typed.supportsSms;
  if (isNew_ && isNameTaken_(contact_.name))
    return ContactProblem{Field::Name, tr("A contact with this name already exists")};
  return {};
}

void ContactForm::applyTexts(const ContactRecord& typed) {
  if (isNew_) contact_.name = typed.name.trimmed();
  contact_.fax = typed.fax.trimmed();
  contact_.phone = typed.phone.trimmed();
  contact_.email = typed.email.trimmed();
  for (std::size_t i = 0; i < contact_.extra.size(); ++i) contact_.extra[i] = typed.extra[i].trimmed();
}

std::optional<ContactProblem> ContactForm::firstBadValue() const {
  if (contact_.name.isEmpty()) return ContactProblem{Field::Name, tr("No contact name was given.")};
  if (!contact_.email.isEmpty() && !isEmailAddress(contact_.email))
    return ContactProblem{Field::Email, tr("Invalid Email Address")};
  if (!contact_.phone.isEmpty() && !isInternationalNumber(contact_.phone))
    return ContactProblem{Field::Phone, tr("Invalid Phone Number. Ensure that the phone number "
                                           "is in an International format.")};
  if (!contact_.fax.isEmpty() && !isInternationalNumber(contact_.fax))
    return ContactProblem{Field::Fax, tr("Invalid Fax Number")};
  if (contact_.phone.isEmpty() && contact_.fax.isEmpty())
    return ContactProblem{Field::Phone, tr("You must provide a valid phone number or valid fax number. ")};
  return {};
}

}  // namespace parlexo
