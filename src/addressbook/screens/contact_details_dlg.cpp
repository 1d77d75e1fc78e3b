// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/contact_details_dlg.h"

#include <cstddef>
#include <utility>

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QUrl>
#include <QVBoxLayout>

#include "base/notifier.h"
#include "base/product.h"
#include "ui/hyperlink_label.h"
#include "ui/look.h"
#include "ui/page_controls.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int extraRows = ContactRecord::extraCount / 2;

QString toFlag(const QCheckBox& box) {
  return box.isChecked() ? u"Y"_s : u"N"_s;
}

QCheckBox* flagBox(const char* name, const QString& text, bool isChecked, QWidget* parent) {
  auto* box = new QCheckBox(text, parent);
  box->setObjectName(QLatin1String(name));
  box->setChecked(isChecked);
  return box;
}

HyperlinkLabel* formatLink(QWidget* parent) {
  auto* link = new HyperlinkLabel(CContactDetailsDlg::tr("Country and area codes, phone number formats"),
                                  QUrl(webPage(u"/phonenumbers.php"_s)), parent);
  link->setObjectName(u"numberFormatLink"_s);
  return link;
}

}  // namespace

QValidator::State ContactTextValidator::validate(QString& input, int& cursor) const {
  cursor = static_cast<int>(asContactText(input.left(cursor)).size());
  input = asContactText(input);
  return Acceptable;
}

CContactDetailsDlg::CContactDetailsDlg(const ContactRecord& contact, ContactForm::NameTest isNameTaken,
                                       Notifier& notifier, QWidget* parent)
    : GradientDialog(parent), form_(contact, std::move(isNameTaken)), notifier_(notifier) {
  setObjectName(u"contactDetailsDialog"_s);
  setWindowTitle(tr("Parlexo(TM) : Contact Details"));
  createEdits();
  createLayout();
  (form_.isNew() ? name_ : email_)->setFocus(Qt::OtherFocusReason);
}

QLineEdit* CContactDetailsDlg::createEdit(const char* name, const QString& text) {
  auto* edit = new QLineEdit(text, this);
  edit->setObjectName(QLatin1String(name));
  edit->setValidator(new ContactTextValidator(edit));
  return edit;
}

void CContactDetailsDlg::createEdits() {
  const ContactRecord& contact = form_.contact();
  if (form_.isNew()) {
    name_ = createEdit("nameEdit", {});
  } else {
    name_ = readOnlyField(u"nameEdit"_s, this);
    name_->setText(contact.name);
  }
  email_ = createEdit("emailEdit", contact.email);
  phone_ = createEdit("phoneEdit", contact.phone);
  fax_ = createEdit("faxEdit", contact.fax);
}

void CContactDetailsDlg::createLayout() {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::dialogMargins);
  layout->setSpacing(look::fieldSpacing);
  layout->addLayout(addressRows());
  layout->addLayout(flagRows());
  layout->addWidget(extraBox());
  layout->addStretch(1);
  layout->addLayout(okAndCancelRow(*this));
  setMinimumWidth(dialogUnits(*this, 330, 0).width());
}

QLayout* CContactDetailsDlg::addressRows() {
  auto* grid = new QGridLayout;
  const auto add = [&](int row, int column, const QString& label, QLineEdit* edit) {
    grid->addWidget(labelFor(edit, label), row, column);
    grid->addWidget(edit, row, column + 1);
  };
  add(0, 0, tr("&Name:"), name_);
  add(0, 2, tr("&Email:"), email_);
  add(1, 0, tr("&Phone:"), phone_);
  add(1, 2, tr("&Fax:"), fax_);
  grid->addWidget(wrappedLabel(tr("All phone and fax numbers must be entered in the international format, "
                                  "for example +61491570156. Follow the link to find country and area "
                                  "codes."),
                               this),
                  2, 0, 1, 4);
  grid->addWidget(formatLink(this), 3, 0, 1, 4, Qt::AlignLeft);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  return grid;
}

QLayout* CContactDetailsDlg::flagRows() {
  sms_ = flagBox("smsBox", tr("Supports &SMS"), form_.supportsSms(), this);
  media_ = flagBox("mediaBox", tr("Supports &Media (WAP and/or MMS)"), form_.supportsMedia(), this);
  auto* boxes = new QHBoxLayout;
  boxes->setSpacing(look::groupSpacing);
  boxes->addWidget(sms_);
  boxes->addWidget(media_);
  boxes->addStretch(1);
  auto* column = new QVBoxLayout;
  column->addWidget(
      wrappedLabel(tr("Select the SMS checkbox if the number supports SMS messaging and select the Media "
                      "checkbox if the number supports WAP and/or MMS. If you do not correctly set the check "
                      "boxes, then you will not be able to select your contact when sending SMS, WAP and/or "
                      "MMS."),
                   this));
  column->addLayout(boxes);
  return column;
}

QGroupBox* CContactDetailsDlg::extraBox() {
  auto* box = new QGroupBox(tr("Extra fields"), this);
  auto* grid = new QGridLayout(box);
  grid->addWidget(wrappedLabel(tr("Use the Extra fields to assign attributes to your contacts. These can be "
                                  "used for selecting contact for messaging. For example: the Extra 1 field "
                                  "can be state/province/area, Extra 2 can be employer name etc."),
                               box),
                  0, 0, 1, 4);
  for (int field = 0; field < ContactRecord::extraCount; ++field) {
    const auto place = static_cast<std::size_t>(field);
    const QString number = QString::number(field + 1);
    extra_[place] = createEdit("", form_.contact().extra[place]);
    extra_[place]->setObjectName(u"extra%1Edit"_s.arg(number));
    const int row = 1 + field % extraRows;
    const int column = 2 * (field / extraRows);
    grid->addWidget(labelFor(extra_[place], tr("Extra &%1:").arg(number)), row, column);
    grid->addWidget(extra_[place], row, column + 1);
  }
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  return box;
}

ContactRecord CContactDetailsDlg::typed() const {
  ContactRecord typed{.name = name_->text(),
                      .phone = phone_->text(),
                      .supportsSms = toFlag(*sms_),
                      .supportsMedia = toFlag(*media_),
                      .fax = fax_->text(),
                      .email = email_->text(),
                      .extra = {}};
  for (std::size_t i = 0; i < extra_.size(); ++i) typed.extra[i] = extra_[i]->text();
  return typed;
}

QLineEdit* CContactDetailsDlg::fieldEdit(ContactProblem::Field field) const {
  switch (field) {
    case ContactProblem::Field::Name:
      return name_;
    case ContactProblem::Field::Email:
      return email_;
    case ContactProblem::Field::Phone:
      return phone_;
    case ContactProblem::Field::Fax:
      return fax_;
  }
  Q_UNREACHABLE();
}

void CContactDetailsDlg::accept() {
  const auto problem = form_.apply(typed());
  if (!problem) {
    GradientDialog::accept();
    return;
  }
  notifier_.error(problem->text);
  QLineEdit* edit = fieldEdit(problem->field);
  edit->setFocus(Qt::OtherFocusReason);
  edit->selectAll();
}

}  // namespace parlexo
