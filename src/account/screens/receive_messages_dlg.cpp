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
namespace {

QString introductionFor(const QString& userName) {
  if (belongsToParent(userName))
    return QStringLiteral(
        "If your parent account has been assigned a dedicated number then it is possible for you to receive "
        "replies to your SMS.\r\nEmail Parlexo for further information.");
  return QStringLiteral(
      "You can receive SMS (plain text and international character set text messages), MMS (sound, picture "
      "and videos etc) and WAP SI messages sent from mobile phones and PDA devices for free. ");
}

}  // namespace

CReceiveMessagesDlg::CReceiveMessagesDlg(const RunState& state, QWidget* parent)
    : GradientPage(parent), state_(state) {
  setObjectName(QStringLiteral("receivePage"));
  introduction_ = wrappedLabel({}, this);
  introduction_->setObjectName(QStringLiteral("introduction"));
  ownNumbers_ = new QWidget(this);
  ownNumbers_->setObjectName(QStringLiteral("ownNumbers"));
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
  auto* group = new QGroupBox(QStringLiteral("Your Parlexo Allocated Number* is:"), ownNumbers_);
  auto* grid = new QGridLayout(group);
  for (std::size_t i = 0; i < receivingNumbers.size(); ++i) {
    const QString country = QLatin1String(receivingNumbers[i].country);
    auto* number = readOnlyField(country.toLower() + QStringLiteral("Number"), group);
    number->setText(QLatin1String(receivingNumbers[i].number));
    users_[i] = readOnlyField(country.toLower() + QStringLiteral("User"), group);
    users_[i]->setAccessibleName(country + QStringLiteral(" User"));
    const int row = int(i);
    grid->addWidget(labelFor(number, country + QStringLiteral(" Number:")), row, 0);
    grid->addWidget(number, row, 1);
    grid->addWidget(new QLabel(QStringLiteral("@"), group), row, 2);
    grid->addWidget(users_[i], row, 3);
  }
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  return group;
}

QWidget* CReceiveMessagesDlg::createExplanation() {
  auto* texts = new QWidget(ownNumbers_);
  const QString address = webPage(QStringLiteral("/receive.php"));
  auto* link = new HyperlinkLabel(address, QUrl(address), texts);
  link->setObjectName(QStringLiteral("receiveLink"));
  auto* column = new QVBoxLayout(texts);
  column->setContentsMargins({});
  column->addWidget(wrappedLabel(
      QStringLiteral("Receiving messages is for free. The sender will be charged at the usual rates set by "
                     "their carrier they are subscribed to. To read more and see examples on how this works "
                     "then click the below link:"),
      texts));
  column->addWidget(link, 0, Qt::AlignLeft);
  column->addSpacing(12);
  column->addWidget(
      wrappedLabel(QStringLiteral("*  If using messages for commercial use then please contact Parlexo to "
                                  "obtain your own dedicated number."),
                   texts));
  return texts;
}

void CReceiveMessagesDlg::showUser() {
  introduction_->setText(introductionFor(state_.userName));
  ownNumbers_->setVisible(!belongsToParent(state_.userName));
  for (QLineEdit* user : users_) user->setText(state_.userName);
}

}  // namespace parlexo
