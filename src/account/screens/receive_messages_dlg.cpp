// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/receive_messages_dlg.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QUrl>
#include <QVBoxLayout>

#include "base/product.h"
#include "base/run_state.h"
#include "ui/hyperlink_label.h"
#include "ui/page_controls.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString introductionFor(const QString& userName) {
  if (belongsToParent(userName))
    return u"If your parent account has been assigned a dedicated number then it is possible for you to "
           u"receive "
           "replies to your SMS.\r\nEmail Parlexo for further information."_s;
  return u"You can receive SMS (plain text and international character set text messages), MMS (sound, "
         u"picture "
         "and videos etc) and WAP SI messages sent from mobile phones and PDA devices for free. "_s;
}

}  // namespace

CReceiveMessagesDlg::CReceiveMessagesDlg(const RunState& state, QWidget* parent)
    : GradientPage(parent), state_(state) {
  setObjectName(u"receivePage"_s);
  introduction_ = wrappedLabel({}, this);
  introduction_->setObjectName(u"introduction"_s);
  ownNumbers_ = new QWidget(this);
  ownNumbers_->setObjectName(u"ownNumbers"_s);
  auto* own = new QVBoxLayout(ownNumbers_);
  own->setContentsMargins({});
  own->setSpacing(14);
  own->addWidget(createNumbers());
  own->addWidget(createExplanation());
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(14, 14, 14, 12);
  column->setSpacing(14);
  column->addWidget(introduction_);
  column->addWidget(ownNumbers_);
  column->addStretch(1);
  showUser();
}

void CReceiveMessagesDlg::showEvent(QShowEvent* event) {
  showUser();
  GradientPage::showEvent(event);
}

QWidget* CReceiveMessagesDlg::createNumbers() {
  auto* group = new QGroupBox(u"Your Parlexo Allocated Number* is:"_s, ownNumbers_);
  auto* grid = new QGridLayout(group);
  for (std::size_t i = 0; i < receivingNumbers.size(); ++i) {
    const QString country = QLatin1String(receivingNumbers[i].country);
    auto* number = readOnlyField(country.toLower() + u"Number"_s, group);
    number->setText(QLatin1String(receivingNumbers[i].number));
    users_[i] = readOnlyField(country.toLower() + u"User"_s, group);
    users_[i]->setAccessibleName(country + u" User"_s);
    const int row = int(i);
    grid->addWidget(labelFor(number, country + u" Number:"_s), row, 0);
    grid->addWidget(number, row, 1);
    grid->addWidget(new QLabel(u"@"_s, group), row, 2);
    grid->addWidget(users_[i], row, 3);
  }
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  return group;
}

QWidget* CReceiveMessagesDlg::createExplanation() {
  auto* texts = new QWidget(ownNumbers_);
  const QString address = webPage(u"/receive.php"_s);
  auto* link = new HyperlinkLabel(address, QUrl(address), texts);
  link->setObjectName(u"receiveLink"_s);
  auto* column = new QVBoxLayout(texts);
  column->setContentsMargins({});
  column->addWidget(
      wrappedLabel(u"Receiving messages is for free. The sender will be charged at the usual rates set by "
                   "their carrier they are subscribed to. To read more and see examples on how this works "
                   "then click the below link:"_s,
                   texts));
  column->addWidget(link, 0, Qt::AlignLeft);
  column->addSpacing(12);
  column->addWidget(
      wrappedLabel(u"*  If using messages for commercial use then please contact Parlexo to "
                   "obtain your own dedicated number."_s,
                   texts));
  return texts;
}

void CReceiveMessagesDlg::showUser() {
  introduction_->setText(introductionFor(state_.userName));
  ownNumbers_->setVisible(!belongsToParent(state_.userName));
  for (QLineEdit* user : users_) user->setText(state_.userName);
}

}  // namespace parlexo
