// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/login_dlg.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "app/banner.h"
#include "base/product.h"
#include "ui/hyperlink_label.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/unsendable_hint.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

void addLink(QVBoxLayout& column, const QString& explanation, const QString& name, const QString& page) {
  column.addWidget(wrappedLabel(explanation, column.parentWidget()));
  const QString address = webPage(page);
  auto* link = new HyperlinkLabel(address, QUrl(address));
  link->setObjectName(name);
  column.addWidget(link, 0, Qt::AlignLeft);
}

}  // namespace

CLoginDlg::CLoginDlg(LoginFlow& flow, const QString& rememberedUser, QWidget* parent)
    : GradientDialog(parent), flow_(flow) {
  setObjectName(u"login"_s);
  setWindowTitle(tr("Parlexo(TM) : Login v%1").arg(QLatin1String(clientVersion)));
  auto* column = new QVBoxLayout(this);
  column->addWidget(new Banner);
  addFields(*column, rememberedUser);
  addButtons(*column);
  column->addStretch(1);
  addLink(*column,
          tr("If you don't have an account with Parlexo then click the link to sign-up. The "
             "sign-up process only takes a minute:"),
          u"signUp"_s, u"/signup.php"_s);
  addLink(*column, tr("Lost your password? Click the link to get your password details:"),
          u"forgotPassword"_s, u"/forgotpassword.php"_s);
  setMinimumSize(dialogUnits(*this, 250, 129));
}

void CLoginDlg::addFields(QVBoxLayout& column, const QString& rememberedUser) {
  user_ = createField(u"userName"_s);
  user_->setText(rememberedUser);
  password_ = createField(u"password"_s);
  password_->setEchoMode(QLineEdit::Password);
  auto* grid = new QGridLayout;
  const auto addRow = [grid](int row, const QString& text, QLineEdit* field) {
    grid->addWidget(field, row, 1);
    grid->addWidget(labelFor(field, text), row, 0);
  };
  addRow(0, tr("User Name:"), user_);
  addRow(1, tr("Password:"), password_);
  column.addLayout(grid);
  auto* hint = new UnsendableHint(this);
  hint->watch({user_, password_});
  column.addWidget(hint);
  (rememberedUser.isEmpty() ? user_ : password_)->setFocus();
}

QLineEdit* CLoginDlg::createField(const QString& name) {
  auto* field = new QLineEdit(this);
  field->setObjectName(name);
  return field;
}

void CLoginDlg::addButtons(QVBoxLayout& column) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  auto* login = addButton(*row, u"logIn"_s, tr("Login"));
  login->setDefault(true);
  connect(login, &PictureButton::clicked, this, &CLoginDlg::logIn);
  auto* cancel = addButton(*row, u"cancel"_s, tr("Cancel"));
  connect(cancel, &PictureButton::clicked, this, &CLoginDlg::reject);
  column.addLayout(row);
}

void CLoginDlg::logIn() {
  if (isLoggingIn_) return;
  LoginOutcome outcome = LoginOutcome::Refused;
  {
    const QScopedValueRollback attempt(isLoggingIn_, true);
    outcome = flow_.attempt(user_->text(), password_->text());
  }
  if (outcome == LoginOutcome::Accepted) return accept();
  password_->setFocus();
  password_->selectAll();
}

void CLoginDlg::reject() {
  // A login in progress needs the dialog when it returns.
  if (!isLoggingIn_) GradientDialog::reject();
}

void CLoginDlg::done(int result) {
  wipeField(*password_);
  GradientDialog::done(result);
}

void CLoginDlg::showEvent(QShowEvent* event) {
  GradientDialog::showEvent(event);
  raise();
  activateWindow();
}

}  // namespace parlexo
