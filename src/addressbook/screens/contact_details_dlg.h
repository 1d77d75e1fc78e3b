// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "addressbook/core/contact_form.h"
#include "contacts/contact_record.h"
#include "ui/gradient_page.h"

class QCheckBox;
class QGroupBox;
class QLayout;
class QLineEdit;

namespace parlexo {

class Notifier;

/// Edits a copy of one contact, a new one or one that exists; the caller saves what comes out.
class CContactDetailsDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// A contact without a name is a new one, see ContactForm. `notifier` must outlive the dialog.
  CContactDetailsDlg(const ContactRecord& contact, ContactForm::NameTest isNameTaken, Notifier& notifier,
                     QWidget* parent = nullptr);

  /// What was typed, once the dialog was accepted.
  [[nodiscard]] const ContactRecord& contact() const { return form_.contact(); }

  /// Closes with the contact; when something is wrong with it, tells the user and stays open.
  void accept() override;

 private:
  [[nodiscard]] QLineEdit* createEdit(const char* name, const QString& text);
  void createEdits();
  void createLayout();
  [[nodiscard]] QLayout* addressRows();
  [[nodiscard]] QLayout* flagRows();
  [[nodiscard]] QGroupBox* extraBox();
  [[nodiscard]] ContactRecord typed() const;
  [[nodiscard]] QLineEdit* editOf(ContactProblem::Field field) const;

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
