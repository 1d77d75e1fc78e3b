#include "messaging/screens/sms_dlg.h"

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
#include "messaging/screens/message_edit.h"
#include "messaging/screens/page_controls.h"
#include "messaging/screens/recipients_panel.h"
#include "ui/picture_button.h"

namespace parlexo {
namespace {

// Set while a recount runs: the texts that it puts back must not count again. One flag for the program, so
// that a second page could not count in the middle of the first.
bool isRecounting = false;

constexpr int counterCharacters = 5;
constexpr int controlSpacing = 6;

QString smsWord() {
  return QStringLiteral("SMS");
}

// A titled box with two radio buttons, in a button group of the given name. The first is chosen here and
// not before: until they are grouped, all radio buttons of the page exclude each other.
QGroupBox* choiceBox(const QString& title, const QString& groupName, QRadioButton* first,
                     QRadioButton* second) {
  auto* box = new QGroupBox(title);
  auto* group = new QButtonGroup(box);
  group->setObjectName(groupName);
  auto* layout = new QVBoxLayout(box);
  for (QRadioButton* choice : {first, second}) {
    group->addButton(choice);
    layout->addWidget(choice);
  }
  first->setChecked(true);
  return box;
}

}  // namespace

CQuillonSMSDlg::CQuillonSMSDlg(const MessagingServices& services, QWidget* parent)
    : SendPage(services, {smsWord(), smsWord()}, parent), flow_(services) {
  setObjectName(QStringLiteral("smsPage"));
  createControls();
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

void CQuillonSMSDlg::createControls() {
  editor_ = new MessageEdit(this);
  editor_->setObjectName(QStringLiteral("messageEdit"));
  connect(editor_, &MessageEdit::textChanged, this, &CQuillonSMSDlg::recount);
  createCounters();
  createCharsetChoice();
  createTypeChoice();
}

void CQuillonSMSDlg::createCharsetChoice() {
  standardCharset_ = new QRadioButton(QStringLiteral("Standard character set"), this);
  standardCharset_->setObjectName(QStringLiteral("standardCharset"));
  unicodeCharset_ = new QRadioButton(QStringLiteral("Unicode (Languages support)"), this);
  unicodeCharset_->setObjectName(QStringLiteral("unicodeCharset"));
}

void CQuillonSMSDlg::createTypeChoice() {
  standardType_ = new QRadioButton(QStringLiteral("Standard"), this);
  standardType_->setObjectName(QStringLiteral("standardType"));
  flashType_ = new QRadioButton(QStringLiteral("Flash"), this);
  flashType_->setObjectName(QStringLiteral("flashType"));
}

void CQuillonSMSDlg::createCounters() {
  totalSms_ = readOnlyField(QStringLiteral("totalSms"), this);
  remaining_ = readOnlyField(QStringLiteral("charactersRemaining"), this);
  for (QLineEdit* counter : {totalSms_, remaining_}) {
    counter->setFocusPolicy(Qt::ClickFocus);
    counter->setAlignment(Qt::AlignRight);
    counter->setFixedWidth(counter->fontMetrics().averageCharWidth() * counterCharacters + 16);
  }
}

QLayout* CQuillonSMSDlg::messageColumn() {
  auto* counters = new QHBoxLayout;
  counters->addWidget(labelFor(totalSms_, QStringLiteral("Total SMS:")));
  counters->addWidget(totalSms_);
  counters->addSpacing(14);
  counters->addWidget(labelFor(remaining_, QStringLiteral("Characters remaining:")));
  counters->addWidget(remaining_);
  counters->addStretch(1);
  auto* column = new QVBoxLayout;
  column->setSpacing(controlSpacing);
  column->addWidget(labelFor(editor_, QStringLiteral("&Message")));
  column->addWidget(editor_, 1);
  column->addLayout(counters);
  return column;
}

QLayout* CQuillonSMSDlg::choiceColumn() {
  auto* tip = button(QStringLiteral("?"), QStringLiteral("templatesTipButton"));
  tip->setAccessibleName(QStringLiteral("About templates"));
  connect(tip, &PictureButton::clicked, this, &CQuillonSMSDlg::showTemplatesTip);
  auto* templates = new QHBoxLayout;
  templates->addWidget(buttonToCome(QStringLiteral("Load Template"), QStringLiteral("loadTemplateButton")));
  templates->addWidget(buttonToCome(QStringLiteral("Save Template"), QStringLiteral("saveTemplateButton")));
  templates->addWidget(tip);
  auto* column = new QVBoxLayout;
  column->setSpacing(controlSpacing);
  column->addWidget(choiceBox(QStringLiteral("Character set"), QStringLiteral("GroupEncoding"),
                              standardCharset_, unicodeCharset_));
  column->addWidget(
      choiceBox(QStringLiteral("Message type"), QStringLiteral("GroupType"), standardType_, flashType_));
  column->addStretch(1);
  column->addLayout(templates);
  return column;
}

PictureButton* CQuillonSMSDlg::buttonToCome(const QString& text, const QString& name) {
  PictureButton* created = button(text, name);
  created->setEnabled(false);
  return created;
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
}

SendOutcome CQuillonSMSDlg::sendMessage() {
  return flow_.send(draft());
}

void CQuillonSMSDlg::clearMessage() {
  editor_->clear();
  recount();
}

void CQuillonSMSDlg::showTemplatesTip() {
  services().notifier.show(text(TextId::TemplatesTip), message_style::information,
                           static_cast<int>(TextId::TemplatesTip));
}

}  // namespace parlexo
