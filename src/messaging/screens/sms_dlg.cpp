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
#include "messaging/core/messaging_texts.h"
#include "messaging/core/template.h"
#include "messaging/screens/load_template_dlg.h"
#include "messaging/screens/message_edit.h"
#include "messaging/screens/recipients_panel.h"
#include "messaging/screens/save_template_dlg.h"
#include "messaging/screens/unsendable_line.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// Set while a recount runs: the texts that it puts back must not count again. One flag for the program, so
// that a second page could not count in the middle of the first.
bool isRecounting = false;

constexpr int counterCharacters = 5;
constexpr int controlSpacing = 6;

struct Choice {
  QString text;
  QString objectName;
};

// A titled box with two radio buttons in a button group of the given name, the first of them chosen.
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
    : SendPage(services, {u"SMS"_s, SelectionMode::Sms}, parent), flow_(services) {
  setObjectName(u"smsPage"_s);
  // Everything is created in reading order, which makes it the order of the Tab key too.
  auto* message = new QHBoxLayout;
  message->setSpacing(14);
  message->addLayout(messageColumn(), 1);
  message->addLayout(choiceColumn());
  layOut(message, 3);
  connect(standardCharset_, &QRadioButton::toggled, this, &CQuillonSMSDlg::applyCharset);
  applyCharset();
}

SmsDraft CQuillonSMSDlg::draft() const {
  SmsDraft draft;
  draft.text = editor_->text();
  draft.charset = charset();
  draft.flash = !standardType_->isChecked();
  draft.displayList = recipients().recipients().displayList();
  draft.numbersList = recipients().recipients().numbersList();
  draft.schedule = schedule();
  return draft;
}

QLayout* CQuillonSMSDlg::messageColumn() {
  editor_ = new MessageEdit(this);
  editor_->setObjectName(u"messageEdit"_s);
  connect(editor_, &MessageEdit::textChanged, this, &CQuillonSMSDlg::recount);
  connect(editor_, &MessageEdit::cursorPositionChanged, this, &CQuillonSMSDlg::showPart);
  auto* column = new QVBoxLayout;
  column->setSpacing(controlSpacing);
  column->addWidget(labelFor(editor_, u"&Message"_s));
  column->addWidget(editor_, 1);
  column->addLayout(counterRow());
  unsendable_ = new UnsendableLine(this);
  connect(unsendable_, &UnsendableLine::unicodeRequested, this, &CQuillonSMSDlg::switchToUnicode);
  column->addWidget(unsendable_);
  return column;
}

QLayout* CQuillonSMSDlg::counterRow() {
  totalSms_ = readOnlyField(u"totalSms"_s, this);
  remaining_ = readOnlyField(u"charactersRemaining"_s, this);
  for (QLineEdit* counter : {totalSms_, remaining_}) {
    counter->setFocusPolicy(Qt::ClickFocus);
    counter->setAlignment(Qt::AlignRight);
    counter->setFixedWidth(counter->fontMetrics().averageCharWidth() * counterCharacters + 16);
  }
  part_ = new QLabel(this);
  part_->setObjectName(u"messagePart"_s);
  auto* row = new QHBoxLayout;
  row->addWidget(labelFor(totalSms_, u"Total SMS:"_s));
  row->addWidget(totalSms_);
  row->addSpacing(14);
  row->addWidget(labelFor(remaining_, u"Characters remaining:"_s));
  row->addWidget(remaining_);
  row->addStretch(1);
  row->addWidget(part_);
  return row;
}

QLayout* CQuillonSMSDlg::choiceColumn() {
  auto* charsets =
      choiceBox(u"Character set"_s, u"GroupEncoding"_s, {u"Standard character set"_s, u"standardCharset"_s},
                {u"Unicode (Languages support)"_s, u"unicodeCharset"_s}, this);
  standardCharset_ = charsets->findChild<QRadioButton*>(u"standardCharset"_s);
  unicodeCharset_ = charsets->findChild<QRadioButton*>(u"unicodeCharset"_s);
  auto* types = choiceBox(u"Message type"_s, u"GroupType"_s, {u"Standard"_s, u"standardType"_s},
                          {u"Flash"_s, u"flashType"_s}, this);
  standardType_ = types->findChild<QRadioButton*>(u"standardType"_s);
  auto* column = new QVBoxLayout;
  column->setSpacing(controlSpacing);
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
  add(u"Load Template"_s, "loadTemplateButton", &CQuillonSMSDlg::loadTemplate);
  add(u"Save Template"_s, "saveTemplateButton", &CQuillonSMSDlg::saveTemplate);
  add(u"?"_s, "templatesTipButton", &CQuillonSMSDlg::showTemplatesTip)
      ->setAccessibleName(u"About templates"_s);
  return row;
}

SmsCharset CQuillonSMSDlg::charset() const {
  return standardCharset_->isChecked() ? SmsCharset::Standard : SmsCharset::Unicode;
}

void CQuillonSMSDlg::applyCharset() {
  editor_->setTextLimit(limitsOf(charset()).text);
  if (editor_->length() > editor_->textLimit()) {
    services().notifier.error(messaging_texts::tooMuchText());
    editor_->truncate(0);
  }
  recount();
}

void CQuillonSMSDlg::recount() {
  if (isRecounting) return;
  const QScopedValueRollback guard(isRecounting, true);
  const SmsComposition composition = composeSms(editor_->text(), charset());
  if (composition.tooLong) services().notifier.error(messaging_texts::unicodeTooLong());
  editor_->truncate(static_cast<int>(composition.editorText.size()));
  totalSms_->setText(QString::number(composition.totalSms));
  remaining_->setText(QString::number(composition.remaining));
  unsendable_->follow(composition.editorText, charset());
  showPart();
}

void CQuillonSMSDlg::showPart() {
  const SmsPart part = partAt(editor_->text(), charset(), editor_->textCursor().position());
  part_->setText(u"Cursor in part %1 of %2"_s.arg(part.number).arg(part.total));
}

void CQuillonSMSDlg::switchToUnicode() {
  unicodeCharset_->setChecked(true);
  editor_->setFocus(Qt::OtherFocusReason);  // the link is gone now
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
    services().notifier.error(messaging_texts::noSmsText());
    editor_->setFocus(Qt::OtherFocusReason);
    return;
  }
  CSaveTemplateDlg(services().templates, {current.displayList, message}, services().notifier, this).exec();
}

void CQuillonSMSDlg::loadTemplate() {
  CLoadTemplateDlg dialog(services().templates, services().notifier, this);
  if (dialog.exec() == QDialog::Accepted) take(dialog.content());
}

void CQuillonSMSDlg::take(const Template& content) {
  const std::optional<QString> decoded = decodedUnicodeSms(content.message);
  const QString text = decoded.value_or(content.message);
  // The old text goes first: a change of the character set must not complain about its length.
  editor_->clear();
  if (decoded)
    unicodeCharset_->setChecked(true);
  else if (text.size() > editor_->textLimit())
    standardCharset_->setChecked(true);
  // A file may hold any amount; one character over the limit is enough to be cut or reported.
  editor_->setText(text.left(standardSmsLimits.text + 1));
  recipients().setEntries(content.displayList);
}

void CQuillonSMSDlg::showTemplatesTip() {
  services().notifier.show(text(TextId::TemplatesTip), message_style::information,
                           static_cast<int>(TextId::TemplatesTip));
}

}  // namespace parlexo
