// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

#include <QString>

#include "contacts/contact_record.h"

namespace parlexo {

/// `typed` as a contact can hold it: without control characters, and with "?" for what the code page lacks.
[[nodiscard]] QString asContactText(const QString& typed);

/// Whether the dialog accepts `value` as an e-mail address.
[[nodiscard]] bool isEmailAddress(const QString& value);

/// What is wrong with a contact that was typed, and where.
struct ContactProblem {
  enum class Field { Name, Email, Phone, Fax };

  Field field;
  QString text;  ///< for the user
};

/// The rules of entering one contact. It works on a copy, so that nothing reaches the address book before
/// the dialog was closed with OK.
class ContactForm {
 public:
  using NameTest = std::function<bool(const QString& name)>;

  /// A contact without a name is a new one, which must not get a name that `isNameTaken` answers with true.
  /// The name of any other contact is its key and stays.
  ContactForm(ContactRecord contact, NameTest isNameTaken);

  [[nodiscard]] bool isNew() const { return isNew_; }
  [[nodiscard]] bool supportsSms() const;
  [[nodiscard]] bool supportsMedia() const;
  /// What was given, or what take() made of it.
  [[nodiscard]] const ContactRecord& contact() const { return contact_; }

  /// Takes over what was typed, blanks at both ends trimmed, and then checks it: the values stay also when
  /// there is a problem. Only the two flags, "Y" or "N", are left alone by a contact with a bad value.
  /// Returns the first problem, or nothing when the contact is fine.
  [[nodiscard]] std::optional<ContactProblem> take(const ContactRecord& typed);

 private:
  void takeTexts(const ContactRecord& typed);
  [[nodiscard]] std::optional<ContactProblem> firstBadValue() const;

  ContactRecord contact_;
  NameTest isNameTaken_;
  bool isNew_;
};

}  // namespace parlexo
