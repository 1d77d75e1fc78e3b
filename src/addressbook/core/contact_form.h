// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

#include <QCoreApplication>
#include <QString>

#include "contacts/contact_record.h"

namespace parlexo {

/// Removes control characters from `typed` and replaces characters that are not in the code page by "?".
[[nodiscard]] QString asContactText(const QString& typed);

/// Returns whether `value` is a valid e-mail address.
[[nodiscard]] bool isEmailAddress(const QString& value);

/// The first invalid field of a contact.
struct ContactProblem {
  enum class Field { Name, Email, Phone, Fax };

  Field field;
  QString text;  ///< for the user
};

/// Validates the contact that the user edits. Works on a copy, which the caller saves when the dialog is
/// accepted.
class ContactForm {
  Q_DECLARE_TR_FUNCTIONS(ContactForm)

 public:
  using NameTest = std::function<bool(const QString& name)>;

  /// A contact without a name is new: the user enters a name, for which `isNameTaken` must return false. The
  /// name of any other contact is its key and can't be changed.
  ContactForm(ContactRecord contact, NameTest isNameTaken);

  [[nodiscard]] bool isNew() const { return isNew_; }
  [[nodiscard]] bool supportsSms() const;
  [[nodiscard]] bool supportsMedia() const;
  /// The contact given, with the values of the last apply().
  [[nodiscard]] const ContactRecord& contact() const { return contact_; }

  /// Copies the typed values, trimmed, to the contact and validates them. Invalid values are copied too; the
  /// two flags are only copied if all values are valid. Returns the first problem, or nullopt if there is
  /// none.
  [[nodiscard]] std::optional<ContactProblem> apply(const ContactRecord& typed);

 private:
  void applyTexts(const ContactRecord& typed);
  [[nodiscard]] std::optional<ContactProblem> firstBadValue() const;

  ContactRecord contact_;
  NameTest isNameTaken_;
  bool isNew_;
};

}  // namespace parlexo
