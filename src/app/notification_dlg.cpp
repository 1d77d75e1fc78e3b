// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/notification_dlg.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QVBoxLayout>

#include "app/core/notification_results.h"
#include "app/message_icon.h"
#include "base/message_texts.h"
#include "ui/look.h"
#include "ui/picture_button.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// Ctrl+C without a selection copies all, wherever in the dialog the focus is: what a message box is expected
// to do.
class MessageView final : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

  void copyText() {
    if (textCursor().hasSelection())
      copy();
    else
      QGuiApplication::clipboard()->setText(toPlainText());
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Copy))
      copyText();
    else
      QPlainTextEdit::keyPressEvent(event);
  }
};

// Read-only, so that a long text scrolls and every text can be selected, copied and read aloud.
MessageView* createMessage(const QString& text) {
  auto* message = new MessageView(text);
  message->setObjectName(u"message"_s);
  message->setAccessibleName(u"Message"_s);
  message->setReadOnly(true);
  message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  message->setTabChangesFocus(true);
  message->setFrameShape(QFrame::NoFrame);
  QPalette palette = message->palette();
  palette.setColor(QPalette::Base, Qt::transparent);
  message->setPalette(palette);
  return message;
}

}  // namespace

CNotificationDlg::CNotificationDlg(const QString& text, unsigned style, bool suppressible, QWidget* parent)
    : GradientDialog(parent), style_(style) {
  setObjectName(u"notification"_s);
  setWindowTitle(u"Parlexo(TM) : Notification"_s);
  auto* column = new QVBoxLayout(this);
  column->addLayout(createHeader(text), 1);
  column->addWidget(createConnectingAnimation(this), 0, Qt::AlignHCenter);
  dontShowAgain_ = new QCheckBox(u"&Don't show again"_s);
  dontShowAgain_->setObjectName(u"dontShowAgain"_s);
  column->addWidget(dontShowAgain_);
  dontShowAgain_->setVisible(suppressible);
  column->addLayout(createButtons());
  focusDefaultButton();
  resize(dialogUnits(*this, 218, 194));
}

bool CNotificationDlg::dontShowAgain() const {
  return dontShowAgain_->isChecked();
}

void CNotificationDlg::reject() {
  end(closeResult(style_));
}

void CNotificationDlg::showEvent(QShowEvent* event) {
  GradientDialog::showEvent(event);
  raise();
  activateWindow();
}

QHBoxLayout* CNotificationDlg::createHeader(const QString& text) {
  auto* left = new QVBoxLayout;
  left->addWidget(new MessageIcon(style_));
  left->addStretch();
  auto* row = new QHBoxLayout;
  row->addLayout(left);
  MessageView* message = createMessage(text);
  auto* copy = new QShortcut(QKeySequence(QKeySequence::Copy), this);
  connect(copy, &QShortcut::activated, message, &MessageView::copyText);
  row->addWidget(message, 1);
  return row;
}

QHBoxLayout* CNotificationDlg::createButtons() {
  auto* row = new QHBoxLayout;
  row->addStretch();
  const unsigned buttons = style_ & message_style::buttonBits;
  const bool asks = buttons == message_style::yesNo || buttons == message_style::yesNoCancel;
  if (asks) {
    addButton(*row, text(TextId::ButtonYes), MessageResult::Yes);
    addButton(*row, text(TextId::ButtonNo), MessageResult::No);
  }
  if (buttons == message_style::yesNoCancel)
    addButton(*row, text(TextId::ButtonCancel), MessageResult::Cancel);
  if (buttons == message_style::ok) addButton(*row, text(TextId::ButtonOk), MessageResult::Ok);
  row->addStretch();
  return row;
}

void CNotificationDlg::addButton(QHBoxLayout& row, const QString& text, MessageResult result) {
  const bool isFirst = row.count() == 1;  // the stretch alone
  auto* button = new PictureButton(text);
  button->setObjectName(u"button%1"_s.arg(static_cast<int>(result)));
  connect(button, &PictureButton::clicked, this, [this, result] { end(result); });
  row.addWidget(button);
  if (isFirst) button->setDefault(true);
}

void CNotificationDlg::focusDefaultButton() {
  // A control takes the focus only once it belongs to the window.
  for (auto* button : findChildren<PictureButton*>())
    if (button->isDefault()) button->setFocus();
}

void CNotificationDlg::end(MessageResult answer) {
  answer_ = answer;
  done(static_cast<int>(answer));
}

}  // namespace parlexo
