// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/sms_dlg.h"

#include <optional>

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "base/message_texts.h"
#include "base/notifier.h"
#include "messaging/core/template.h"
#include "messaging/screens/load_template_dlg.h"
#include "messaging/screens/message_edit.h"
#include "messaging/screens/recipients_panel.h"
#include "messaging/screens/save_template_dlg.h"
#include "ui/hyperlink_label.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/unsendable_hint.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// Set during a recount, which changes the text and must not start another. Shared by all pages, so a second
// page can't recount in the middle of the first one's recount.
bool isRecounting = false;

struct Choice {
  QString text;
  QString objectName;
};

// A titled box with two radio buttons in a button group of the given name. The first one is checked.
QGroupBox* choiceBox(const QString& title, const QString& groupName, const Choice& first,
                     const Choice& second, QWidget* parent) {
  auto* box = new QGroupBox(title, parent);
  auto* group = new QButtonGroup(box);
  group->setObjectName(groupName);
  auto* layout = new QVBoxLayout(box);
  for (const Choice& choice : {first, second}) {
    auto* button = new QRadioButton(choice.text, box);
    button->setObjectName(choice.objectName);
    group->addButton(button);
    layout->addWidget(button);
  }
  group->buttons().constFirst()->setChecked(true);
  return box;
}

}  // namespace

CQuillonSMSDlg::CQuillonSMSDlg(const MessagingServices& services, QWidget* parent)
    : SendPage(services, MessageType::Sms, parent), flow_(services) {
  setObjectName(u"smsPage"_s);
  // Creates the controls in reading order, which is the tab order.
  auto* message = new QHBoxLayout;
  message->setSpacing(look::sectionSpacing);
  message->addLayout(messageColumn(), 1);
  message->addLayout(choiceColumn());
  layOut(message, 3);
  connect(standardCharset_, &QRadioButton::toggled, this, &CQuillonSMSDlg::applyCharset);
  applyCharset();
}

SmsDraft CQuillonSMSDlg::draft() const {
  return {.text = editor_->text(),
          .charset = charset(),
          .flash = !standardType_->isChecked(),
          .displayList = recipientsPanel().recipients().displayList(),
          .numbersList = recipientsPanel().recipients().numbersList(),
          .schedule = schedule()};
}

QLayout* CQuillonSMSDlg::messageColumn() {
  editor_ = new MessageEdit(this);
  editor_->setObjectName(u"messageEdit"_s);
  connect(editor_, &MessageEdit::textChanged, this, &CQuillonSMSDlg::recount);
  connect(editor_, &MessageEdit::cursorPositionChanged, this, &CQuillonSMSDlg::showPart);
  auto* column = new QVBoxLayout;
  column->setSpacing(look::controlSpacing);
  column->addWidget(labelFor(editor_, tr("&Message")));
  column->addWidget(editor_, 1);
  column->addLayout(counterRow());
  column->addWidget(createUnsendableLine());
  return column;
}

QLayout* CQuillonSMSDlg::counterRow() {
  totalSms_ = counterField(u"totalSms"_s);
  remaining_ = counterField(u"charactersRemaining"_s);
  part_ = new QLabel(this);
  part_->setObjectName(u"messagePart"_s);
  auto* row = new QHBoxLayout;
  row->addWidget(labelFor(totalSms_, tr("Total SMS:")));
  row->addWidget(totalSms_);
  row->addSpacing(look::sectionSpacing);
  row->addWidget(labelFor(remaining_, tr("Characters remaining:")));
  row->addWidget(remaining_);
  row->addStretch(1);
  row->addWidget(part_);
  return row;
}

QWidget* CQuillonSMSDlg::createUnsendableLine() {
  auto* line = new QWidget(this);
  line->setObjectName(u"unsendableLine"_s);
  unsendable_ = new UnsendableHint(line);
  unicodeLink_ = new HyperlinkLabel(tr("Switch to Unicode"), {}, line);
  unicodeLink_->setObjectName(u"switchToUnicode"_s);
  connect(unicodeLink_, &HyperlinkLabel::clicked, this, &CQuillonSMSDlg::switchToUnicode);
  QLayout* layout = lineWithLink(*unsendable_, *unicodeLink_);
  layout->setContentsMargins({});
  line->setLayout(layout);
  return line;
}

QLayout* CQuillonSMSDlg::choiceColumn() {
  auto* charsets =
      choiceBox(tr("Character set"), u"GroupEncoding"_s, {tr("Standard character set"), u"standardCharset"_s},
                {tr("Unicode (Languages support)"), u"unicodeCharset"_s}, this);
  standardCharset_ = charsets->findChild<QRadioButton*>(u"standardCharset"_s);
  unicodeCharset_ = charsets->findChild<QRadioButton*>(u"unicodeCharset"_s);
  auto* types = choiceBox(tr("Message type"), u"GroupType"_s, {tr("Standard"), u"standardType"_s},
                          {tr("Flash"), u"flashType"_s}, this);
  standardType_ = types->findChild<QRadioButton*>(u"standardType"_s);
  auto* column = new QVBoxLayout;
  column->setSpacing(look::controlSpacing);
  column->addWidget(charsets);
  column->addWidget(types);
  column->addStretch(1);
  column->addLayout(templateRow());
  return column;
}

QLayout* CQuillonSMSDlg::templateRow() {
  auto* row = new QHBoxLayout;
  const auto add = [this, row](const QString& text, const char* name, auto action) {
    PictureButton* created = button(text, QLatin1String(name));
    connect(created, &PictureButton::clicked, this, action);
    row->addWidget(created);
    return created;
  };
  add(tr("Load Template"), "loadTemplateButton", &CQuillonSMSDlg::loadTemplate);
  add(tr("Save Template"), "saveTemplateButton", &CQuillonSMSDlg::saveTemplate);
  add(u"?"_s, "templatesTipButton", &CQuillonSMSDlg::showTemplatesTip)
      ->setAccessibleName(tr("About templates"));
  return row;
}

SmsCharset CQuillonSMSDlg::charset() const {
  return standardCharset_->isChecked() ? SmsCharset::Standard : SmsCharset::Unicode;
}

void CQuillonSMSDlg::applyCharset() {
  editor_->setTextLimit(smsLimits(charset()).text);
  if (editor_->length() > editor_->textLimit()) {
    services().notifier.error(tr("You have entered too much text for messaging. Clearing text to send"));
    editor_->truncate(0);
  }
  recount();
}

void CQuillonSMSDlg::recount() {
  if (isRecounting) return;
  const QScopedValueRollback guard(isRecounting, true);
  const SmsComposition composition = composeSms(editor_->text(), charset());
  if (composition.tooLong) services().notifier.error(SmsSendFlow::unicodeTooLong());
  editor_->truncate(static_cast<int>(composition.editorText.size()));
  totalSms_->setText(QString::number(composition.totalSms));
  remaining_->setText(QString::number(composition.remaining));
  showUnsendable(composition.editorText);
  showPart();
}

// Offers Unicode only if the text fits in it.
void CQuillonSMSDlg::showUnsendable(const QString& text) {
  unsendable_->check(charset() == SmsCharset::Standard ? text : QString());
  unicodeLink_->setVisible(!unsendable_->text().isEmpty() && text.size() <= unicodeSmsLimits.text);
}

void CQuillonSMSDlg::showPart() {
  const SmsPart part = partAt(editor_->text(), charset(), editor_->textCursor().position());
  part_->setText(tr("Cursor in part %1 of %2").arg(part.number).arg(part.total));
}

void CQuillonSMSDlg::switchToUnicode() {
  unicodeCharset_->setChecked(true);
  editor_->setFocus(Qt::OtherFocusReason);  // the link is hidden now
}

SendOutcome CQuillonSMSDlg::sendMessage() {
  return flow_.send(draft());
}

QWidget* CQuillonSMSDlg::controlAtFault(SendOutcome outcome) const {
  return outcome == SendOutcome::MessageAtFault ? editor_ : SendPage::controlAtFault(outcome);
}

void CQuillonSMSDlg::clearMessage() {
  editor_->clear();
  recount();
}

void CQuillonSMSDlg::saveTemplate() {
  const SmsDraft current = draft();
  const QString message = composeSms(current.text, current.charset).transmitText;
  if (message.isEmpty()) {
    services().notifier.error(SmsSendFlow::noText());
    editor_->setFocus(Qt::OtherFocusReason);
    return;
  }
  CSaveTemplateDlg(services().templates, {current.displayList, message}, services().notifier, this).exec();
}

void CQuillonSMSDlg::loadTemplate() {
  CLoadTemplateDlg dialog(services().templates, services().notifier, this);
  if (dialog.exec() == QDialog::Accepted) applyTemplate(dialog.content());
}

void CQuillonSMSDlg::applyTemplate(const Template& content) {
  const std::optional<QString> decoded = decodeUnicodeSms(content.message);
  const QString text = decoded.value_or(content.message);
  // Cleared first, because changing the character set would report an old text that is too long for it.
  editor_->clear();
  if (decoded)
    unicodeCharset_->setChecked(true);
  else if (text.size() > editor_->textLimit())
    standardCharset_->setChecked(true);
  // The file may be large; one character over the limit suffices for truncation or the error message.
  editor_->setText(text.left(standardSmsLimits.text + 1));
  recipientsPanel().setEntries(content.displayList);
}

void CQuillonSMSDlg::showTemplatesTip() {
  services().notifier.show(text(TextId::TemplatesTip), message_style::information,
                           static_cast<int>(TextId::TemplatesTip));
}

}  // namespace parlexo
