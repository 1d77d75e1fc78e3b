// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/sender_id_dlg.h"

#include <QLabel>
#include <QLineEdit>
#include <QUrl>
#include <QVBoxLayout>

#include "base/product.h"
#include "ui/hyperlink_label.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/unsendable_hint.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

HyperlinkLabel* accountLink(QWidget* parent) {
  auto* link =
      new HyperlinkLabel(CSenderIdDlg::tr("Log in to your account"), QUrl(webPage(u"/login.php"_s)), parent);
  link->setObjectName(u"accountLink"_s);
  return link;
}

}  // namespace

CSenderIdDlg::CSenderIdDlg(const QString& current, QWidget* parent) : GradientDialog(parent) {
  setObjectName(u"senderIdDialog"_s);
  setWindowTitle(tr("Parlexo(TM) : Sender Id"));
  createLayout(current);
  setMinimumSize(dialogUnits(*this, 220, 110));
  edit_->selectAll();
  edit_->setFocus(Qt::OtherFocusReason);
}

// Creates the controls in reading order, which is the tab order.
void CSenderIdDlg::createLayout(const QString& current) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::dialogMargins);
  layout->setSpacing(look::fieldSpacing);
  layout->addWidget(
      wrappedLabel(tr("The Sender Id that your SMS, MMS and fax messages carry can be changed in your online "
                      "account."),
                   this));
  layout->addWidget(accountLink(this), 0, Qt::AlignLeft);
  layout->addSpacing(look::controlSpacing);
  layout->addWidget(wrappedLabel(
      tr("If your account has been enabled to set any Sender Id then simply just set your mobile "
         "Sender Id below. "),
      this));
  edit_ = new QLineEdit(current, this);
  edit_->setObjectName(u"senderIdEdit"_s);
  layout->addWidget(labelFor(edit_, tr("&Any Mobile Sender ID:")));
  layout->addWidget(edit_);
  auto* hint = new UnsendableHint(this);
  hint->watch({edit_});
  layout->addWidget(hint);
  layout->addStretch(1);
  layout->addLayout(dialogButtonRow(*this, {u"saveButton"_s, tr("&Save")}, {u"closeButton"_s, tr("&Close")}));
}

QString CSenderIdDlg::senderId() const {
  return edit_->text();
}

}  // namespace parlexo
