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
namespace {

HyperlinkLabel* accountLink(QWidget* parent) {
  auto* link = new HyperlinkLabel(QStringLiteral("Log in to your account"),
                                  QUrl(webPage(QStringLiteral("/login.php"))), parent);
  link->setObjectName(QStringLiteral("accountLink"));
  return link;
}

}  // namespace

CSenderIdDlg::CSenderIdDlg(const QString& current, QWidget* parent) : GradientDialog(parent) {
  setObjectName(QStringLiteral("senderIdDialog"));
  setWindowTitle(QStringLiteral("Parlexo(TM) : Sender Id"));
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
  layout->addWidget(wrappedLabel(
      QStringLiteral("The Sender Id that your SMS, MMS and fax messages carry can be changed in your online "
                     "account."),
      this));
  layout->addWidget(accountLink(this), 0, Qt::AlignLeft);
  layout->addSpacing(6);
  layout->addWidget(wrappedLabel(
      QStringLiteral("If your account has been enabled to set any Sender Id then simply just set your mobile "
                     "Sender Id below. "),
      this));
  edit_ = new QLineEdit(current, this);
  edit_->setObjectName(QStringLiteral("senderIdEdit"));
  layout->addWidget(labelFor(edit_, QStringLiteral("&Any Mobile Sender ID:")));
  layout->addWidget(edit_);
  auto* hint = new UnsendableHint(this);
  hint->watch({edit_});
  layout->addWidget(hint);
  layout->addStretch(1);
  layout->addLayout(dialogButtonRow(*this, {QStringLiteral("saveButton"), QStringLiteral("&Save")},
                                    {QStringLiteral("closeButton"), QStringLiteral("&Close")}));
}

QString CSenderIdDlg::senderId() const {
  return edit_->text();
}

}  // namespace parlexo
