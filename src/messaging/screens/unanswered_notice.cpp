// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/unanswered_notice.h"

namespace parlexo {

using namespace Qt::StringLiterals;

UnansweredNotice::UnansweredNotice(QWidget* parent) : QLabel(parent) {
  setObjectName(u"unansweredNotice"_s);
  setTextFormat(Qt::PlainText);
  setText(
      u"No answer came to your last message, so it may have been accepted. Look into the account history "
      "before you send it again."_s);
  setWordWrap(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setFocusPolicy(Qt::ClickFocus);
  hide();
}

void UnansweredNotice::follow(SendOutcome outcome) {
  switch (outcome) {
    case SendOutcome::OutcomeUnknown:
      show();
      return;
    case SendOutcome::PartlyFailed:
    case SendOutcome::Delivered:
      hide();
      return;
    case SendOutcome::MessageAtFault:
    case SendOutcome::FileAtFault:
    case SendOutcome::RecipientsAtFault:
    case SendOutcome::NotSent:
      return;
  }
}

}  // namespace parlexo
