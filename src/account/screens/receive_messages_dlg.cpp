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
#include "ui/look.h"
#include "ui/page_controls.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// User names of accounts below a parent account are "NAME@PARENT".
bool hasParent(const QString& userName) {
  return userName.contains(u'@');
}

QString introductionFor(const QString& userName) {
  if (hasParent(userName))
    return CReceiveMessagesDlg::tr(
        "If your parent account has been assigned a dedicated number then it is possible for you to receive "
        "replies to your SMS.\r\nEmail Parlexo for further information.");
  return CReceiveMessagesDlg::tr(
      "You can receive SMS (plain text and international character set text messages), MMS (sound, picture "
      "and videos etc) and WAP SI messages sent from mobile phones and PDA devices for free. ");
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
  own->setSpacing(look::sectionSpacing);
  own->addWidget(createNumbers());
  own->addWidget(createExplanation());
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(look::tallPageMargins);
  column->setSpacing(look::sectionSpacing);
  column->addWidget(introduction_);
  column->addWidget(ownNumbers_);
  column->addStretch(1);
  updateUser();
}

void CReceiveMessagesDlg::showEvent(QShowEvent* event) {
  updateUser();
  GradientPage::showEvent(event);
}

QWidget* CReceiveMessagesDlg::createNumbers() {
  auto* group = new QGroupBox(tr("Your Parlexo Allocated Number* is:"), ownNumbers_);
  auto* grid = new QGridLayout(group);
  for (std::size_t i = 0; i < receivingNumbers.size(); ++i) {
    const QString name = QString::fromLatin1(receivingNumbers[i].country).toLower();
    const QString country = tr(receivingNumbers[i].country);
    auto* number = readOnlyField(name + u"Number"_s, group);
    number->setText(QLatin1String(receivingNumbers[i].number));
    users_[i] = readOnlyField(name + u"User"_s, group);
    users_[i]->setAccessibleName(tr("%1 User").arg(country));
    const int row = static_cast<int>(i);
    grid->addWidget(labelFor(number, tr("%1 Number:").arg(country)), row, 0);
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
      wrappedLabel(tr("Receiving messages is for free. The sender will be charged at the usual rates set by "
                      "their carrier they are subscribed to. To read more and see examples on how this works "
                      "then click the below link:"),
                   texts));
  column->addWidget(link, 0, Qt::AlignLeft);
  column->addSpacing(look::columnSpacing);
  column->addWidget(wrappedLabel(tr("*  If using messages for commercial use then please contact Parlexo to "
                                    "obtain your own dedicated number."),
                                 texts));
  return texts;
}

void CReceiveMessagesDlg::updateUser() {
  introduction_->setText(introductionFor(state_.userName));
  ownNumbers_->setVisible(!hasParent(state_.userName));
  for (QLineEdit* user : users_) user->setText(state_.userName);
}

}  // namespace parlexo
