// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/notification_dlg.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QVBoxLayout>

#include "base/message_texts.h"
#include "ui/gradient_page.h"
#include "ui/look.h"
#include "ui/picture_button.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 36;
constexpr QRectF iconRect(2, 2, iconSize - 4, iconSize - 4);

QString accessibleIconName(unsigned icon) {
  switch (icon) {
    case message_style::stop:
      return CNotificationDlg::tr("Error");
    case message_style::question:
      return CNotificationDlg::tr("Question");
    case message_style::exclamation:
      return CNotificationDlg::tr("Warning");
    case message_style::information:
      return CNotificationDlg::tr("Information");
    default:
      return {};
  }
}

void fillShape(QPainter& painter, const QPainterPath& shape, QColor colour) {
  QLinearGradient gradient(iconRect.topLeft(), iconRect.bottomLeft());
  gradient.setColorAt(0, colour.lighter(125));
  gradient.setColorAt(1, colour);
  painter.setPen(QPen(colour.darker(125), 1));
  painter.setBrush(gradient);
  painter.drawPath(shape);
}

QPainterPath circle() {
  QPainterPath path;
  path.addEllipse(iconRect);
  return path;
}

QPainterPath triangle() {
  QPainterPath path;
  path.moveTo(iconRect.center().x(), iconRect.top() + 2);
  path.lineTo(iconRect.right() - 1, iconRect.bottom() - 3);
  path.lineTo(iconRect.left() + 1, iconRect.bottom() - 3);
  path.closeSubpath();
  return path;
}

void drawSign(QPainter& painter, const QString& sign, QColor colour, QRectF rect) {
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(iconSize * 6 / 10);
  painter.setFont(font);
  painter.setPen(colour);
  painter.drawText(rect, Qt::AlignCenter, sign);
}

void drawStop(QPainter& painter) {
  fillShape(painter, circle(), QColor(200, 40, 44));
  painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
  constexpr QRectF cross(12.5, 12.5, iconSize - 25, iconSize - 25);
  painter.drawLine(cross.topLeft(), cross.bottomRight());
  painter.drawLine(cross.topRight(), cross.bottomLeft());
}

void drawExclamation(QPainter& painter) {
  fillShape(painter, triangle(), QColor(244, 178, 32));
  drawSign(painter, u"!"_s, QColor(60, 40, 0), iconRect.translated(0, 3));
}

void drawCircled(QPainter& painter, const QString& sign) {
  fillShape(painter, circle(), QColor(36, 112, 190));
  drawSign(painter, sign, Qt::white, iconRect);
}

/// The icon of a message style, drawn to be sharp at every scale. A style without an icon draws nothing.
class MessageIcon final : public QWidget {
 public:
  explicit MessageIcon(unsigned style) : icon_(style & message_style::iconBits) {
    setObjectName(u"messageIcon"_s);
    setFixedSize(iconSize, iconSize);
    setAccessibleName(accessibleIconName(icon_));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (icon_ == message_style::stop) drawStop(painter);
    if (icon_ == message_style::question) drawCircled(painter, u"?"_s);
    if (icon_ == message_style::exclamation) drawExclamation(painter);
    if (icon_ == message_style::information) drawCircled(painter, u"i"_s);
  }

 private:
  unsigned icon_;
};

/// Shows the text of a message. As in any message box, Ctrl+C without a selection copies all of it.
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

// Uses a text edit, so that long texts scroll and all texts can be selected and read by screen readers.
MessageView* createMessage(const QString& text) {
  auto* message = new MessageView(text);
  message->setObjectName(u"message"_s);
  message->setAccessibleName(CNotificationDlg::tr("Message"));
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
  setWindowTitle(tr("Parlexo(TM) : Notification"));
  auto* column = new QVBoxLayout(this);
  column->addLayout(createHeader(text), 1);
  column->addWidget(createConnectingAnimation(this), 0, Qt::AlignHCenter);
  dontShowAgain_ = new QCheckBox(tr("&Don't show again"));
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
  const bool isQuestion = buttons == message_style::yesNo || buttons == message_style::yesNoCancel;
  if (isQuestion) {
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
  const bool isFirst = row.count() == 1;  // only the stretch so far
  auto* button = new PictureButton(text);
  button->setObjectName(u"button%1"_s.arg(static_cast<int>(result)));
  connect(button, &PictureButton::clicked, this, [this, result] { end(result); });
  row.addWidget(button);
  if (isFirst) button->setDefault(true);
}

void CNotificationDlg::focusDefaultButton() {
  // Called last, as a control accepts the focus only once it belongs to the window.
  for (auto* button : findChildren<PictureButton*>())
    if (button->isDefault()) button->setFocus();
}

void CNotificationDlg::end(MessageResult answer) {
  answer_ = answer;
  done(static_cast<int>(answer));
}

MessageResult NotificationNotifier::show(const QString& text, unsigned style, int suppressibleNumber) {
  const bool suppressible = suppressibleNumber != 0;
  if (suppressible && settings_.isMessageSuppressed(suppressibleNumber)) return suppressedResult(style);
  // The front window may be the progress box; as its child, the message stays above it.
  CNotificationDlg dialog(text, style, suppressible, frontWindow());
  dialog.exec();
  if (dialog.dontShowAgain()) settings_.suppressMessage(suppressibleNumber);
  return dialog.answer();
}

}  // namespace parlexo
