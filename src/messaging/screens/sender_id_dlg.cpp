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
  auto* link = new HyperlinkLabel(u"Log in to your account"_s, QUrl(webPage(u"/login.php"_s)), parent);
  link->setObjectName(u"accountLink"_s);
  return link;
}

}  // namespace

CSenderIdDlg::CSenderIdDlg(const QString& current, QWidget* parent) : GradientDialog(parent) {
  setObjectName(u"senderIdDialog"_s);
  setWindowTitle(u"Parlexo(TM) : Sender Id"_s);
  createLayout(current);
  setMinimumSize(dialogUnits(*this, 220, 110));
  edit_->selectAll();
  edit_->setFocus(Qt::OtherFocusReason);
}

// In reading order, which makes it the order of the Tab key too.
void CSenderIdDlg::createLayout(const QString& current) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 14, 16, 14);
  layout->setSpacing(8);
  layout->addWidget(
      wrappedLabel(u"The Sender Id that your SMS, MMS and fax messages carry can be changed in your online "
                   "account."_s,
                   this));
  layout->addWidget(accountLink(this), 0, Qt::AlignLeft);
  layout->addSpacing(6);
  layout->addWidget(
      wrappedLabel(u"If your account has been enabled to set any Sender Id then simply just set your mobile "
                   "Sender Id below. "_s,
                   this));
  edit_ = new QLineEdit(current, this);
  edit_->setObjectName(u"senderIdEdit"_s);
  layout->addWidget(labelFor(edit_, u"&Any Mobile Sender ID:"_s));
  layout->addWidget(edit_);
  auto* hint = new UnsendableHint(this);
  hint->watch({edit_});
  layout->addWidget(hint);
  layout->addStretch(1);
  layout->addLayout(dialogButtonRow(*this, {u"saveButton"_s, u"&Save"_s}, {u"closeButton"_s, u"&Close"_s}));
}

QString CSenderIdDlg::senderId() const {
  return edit_->text();
}

}  // namespace parlexo
