// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QValidator>

#include "addressbook/core/contact_form.h"
#include "contacts/contact_record.h"
#include "ui/gradient_page.h"

class QCheckBox;
class QGroupBox;
class QLayout;
class QLineEdit;

namespace parlexo {

class Notifier;

/// Converts typed or pasted text immediately to what a contact can store, so that the user sees the text that
/// will be saved.
class ContactTextValidator final : public QValidator {
  Q_OBJECT

 public:
  using QValidator::QValidator;

  [[nodiscard]] State validate(QString& input, int& cursor) const override;
};

/// Edits a copy of a new or existing contact. The caller saves the result.
class CContactDetailsDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// A contact without a name is new, see ContactForm. `notifier` must outlive the dialog.
  CContactDetailsDlg(const ContactRecord& contact, ContactForm::NameTest isNameTaken, Notifier& notifier,
                     QWidget* parent = nullptr);

  /// The edited contact; valid once the dialog has been accepted.
  [[nodiscard]] const ContactRecord& contact() const { return form_.contact(); }

  /// Closes the dialog if the contact is valid. Otherwise reports the error and stays open.
  void accept() override;

 private:
  [[nodiscard]] QLineEdit* createEdit(const char* name, const QString& text);
  void createEdits();
  void createLayout();
  [[nodiscard]] QLayout* addressRows();
  [[nodiscard]] QLayout* flagRows();
  [[nodiscard]] QGroupBox* extraBox();
  [[nodiscard]] ContactRecord typed() const;
  [[nodiscard]] QLineEdit* fieldEdit(ContactProblem::Field field) const;

  ContactForm form_;
  Notifier& notifier_;
  QLineEdit* name_ = nullptr;
  QLineEdit* email_ = nullptr;
  QLineEdit* phone_ = nullptr;
  QLineEdit* fax_ = nullptr;
  QCheckBox* sms_ = nullptr;
  QCheckBox* media_ = nullptr;
  std::array<QLineEdit*, ContactRecord::extraCount> extra_{};
};

}  // namespace parlexo
