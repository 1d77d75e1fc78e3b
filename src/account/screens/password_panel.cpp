// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/password_panel.h"

#include <QFormLayout>
#include <QLineEdit>

#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/unsendable_hint.h"

namespace parlexo {

using namespace Qt::StringLiterals;

PasswordPanel::PasswordPanel(const AccountServices& services, QWidget* parent)
    : QGroupBox(tr("Change Password:"), parent), services_(services) {
  setObjectName(u"passwordPanel"_s);
  auto* form = new QFormLayout;
  old_ = addEdit(*form, "oldPassword", tr("&Old password:"));
  new_ = addEdit(*form, "newPassword", tr("&New Password:"));
  retyped_ = addEdit(*form, "retypedPassword", tr("&Retype New Password:"));
  auto* button = new PictureButton(tr("Change &Password"), this);
  button->setObjectName(u"changePasswordButton"_s);
  connect(button, &PictureButton::clicked, this, &PasswordPanel::change);
  auto* column = new QVBoxLayout(this);
  column->addLayout(form);
  auto* hint = new UnsendableHint(this);
  hint->watch({old_, new_, retyped_});
  column->addWidget(hint);
  column->addStretch(1);
  column->addWidget(button, 0, Qt::AlignRight);
}

PasswordPanel::~PasswordPanel() {
  wipeFields();
}

QLineEdit* PasswordPanel::addEdit(QFormLayout& form, const char* name, const QString& label) {
  auto* edit = new QLineEdit(this);
  edit->setObjectName(QLatin1String(name));
  edit->setEchoMode(QLineEdit::Password);
  edit->setMinimumWidth(dialogUnits(*edit, 50, 0).width());
  connect(edit, &QLineEdit::returnPressed, this, &PasswordPanel::change);
  form.addRow(labelFor(edit, label), edit);
  return edit;
}

void PasswordPanel::change() {
  // The draft is destroyed before wiping, as its strings share their memory with the fields.
  const auto wrongField = changePassword(services_, {old_->text(), new_->text(), retyped_->text()});
  if (!wrongField) return wipeFields();
  findField(*wrongField)->setFocus();
  findField(*wrongField)->selectAll();
}

void PasswordPanel::wipeFields() {
  for (QLineEdit* field : {old_, new_, retyped_}) wipeField(*field);
}

QLineEdit* PasswordPanel::findField(PasswordField field) const {
  switch (field) {
    case PasswordField::Old:
      return old_;
    case PasswordField::New:
      return new_;
    case PasswordField::Retyped:
      return retyped_;
  }
  return old_;
}

}  // namespace parlexo
