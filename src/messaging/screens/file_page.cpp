// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/file_page.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QVBoxLayout>

#include "base/run_state.h"
#include "messaging/screens/file_panel.h"
#include "messaging/screens/message_edit.h"
#include "messaging/screens/picture_preview.h"
#include "messaging/screens/recipients_panel.h"
#include "ui/page_controls.h"
#include "ui/unsendable_hint.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// What a multi-line edit takes by default where most of our users are. More than may be sent, so that whoever
// has entered too much is told and can shorten it.
constexpr int longestTypedDescription = 32'767;
constexpr int counterDigits = 5;
constexpr int fewestNoteLines = 3;  // on the smallest screen
constexpr int noteMargins = 12;     // above and below the lines together

}  // namespace

/// In what the pages differ.
struct FilePage::Kind {
  QString objectName;
  SelectionMode selectionMode;
  RecipientNumber number;
  QString fileLabel;
  QString noteLabel;  ///< empty for a page without a note
  int noteLimit;      ///< characters that can be entered
  bool countsNote;
  bool countsPages;
  bool previewsPicture;
};

const FilePage::Kind& FilePage::kindOf(FileKind kind) {
  // A contact's fax has a number of its own, and many a contact has nothing but that.
  static const Kind fax = {
      u"faxPage"_s, SelectionMode::Fax, RecipientNumber::Fax, u"Fax &file:"_s, {}, 0, false, true, false};
  static const Kind mms = {u"mmsPage"_s,
                           SelectionMode::Media,
                           RecipientNumber::Phone,
                           u"Media &file:"_s,
                           u"&Description:"_s,
                           longestTypedDescription,
                           false,
                           false,
                           true};
  static const Kind wap = {u"wapPage"_s,
                           SelectionMode::Media,
                           RecipientNumber::Phone,
                           u"WAP &file:"_s,
                           u"Sender &Note:"_s,
                           longestWapNote,
                           true,
                           false,
                           false};
  switch (kind) {
    case FileKind::Fax:
      return fax;
    case FileKind::Mms:
      return mms;
    case FileKind::Wap:
      return wap;
  }
  Q_UNREACHABLE();
}

FilePage::FilePage(const MessagingServices& services, FileKind kind, QWidget* parent)
    : SendPage(services,
               {fileMessageKind(kind).send.typeWord, kindOf(kind).selectionMode, kindOf(kind).number,
                fileMessageKind(kind).send.senderIdUse},
               parent),
      kind_(kindOf(kind)),
      limit_(fileMessageKind(kind).limit),
      flow_(services, kind) {
  setObjectName(kind_.objectName);
  setAcceptDrops(true);
  file_ = new FilePanel(kind_.fileLabel, services.settings, this);
  layOut(messageArea(), kind_.noteLabel.isEmpty() ? 0 : 1);
}

FileDraft FilePage::draft() const {
  return {file_->path(), note_ ? note_->text() : QString(), recipients().recipients().displayList(),
          recipients().recipients().numbersList(), schedule()};
}

void FilePage::refresh() {
  const QSize picture = preview_ ? preview_->room() : QSize();
  file_->setWishes({services().state.gateway.*limit_, kind_.countsPages, picture});
  file_->look();
}

QLayout* FilePage::messageArea() {
  auto* area = new QVBoxLayout;
  area->setSpacing(6);
  area->addWidget(file_);
  if (!kind_.noteLabel.isEmpty()) area->addLayout(noteArea(), 1);
  return area;
}

QLayout* FilePage::noteArea() {
  note_ = new MessageEdit(this);
  note_->setObjectName(u"noteEdit"_s);
  note_->setTextLimit(kind_.noteLimit);
  // The edit's own wish for height would leave the recipients hardly a line on a small screen.
  note_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  auto* area = new QGridLayout;
  area->setVerticalSpacing(6);
  area->setHorizontalSpacing(14);
  area->addLayout(noteHeading(), 0, 0);
  area->addWidget(note_, 1, 0);
  if (kind_.countsNote) area->addLayout(counterRow(), 2, 0);
  if (kind_.previewsPicture) addPreview(*area);
  area->setColumnStretch(0, 1);
  area->setRowStretch(1, 1);
  area->setRowMinimumHeight(1, fewestNoteLines * note_->fontMetrics().lineSpacing() + noteMargins);
  return area;
}

QLayout* FilePage::noteHeading() {
  auto* hint = new UnsendableHint(this);
  connect(note_, &MessageEdit::textChanged, hint, [this, hint] { hint->follow(note_->text()); });
  auto* row = new QHBoxLayout;
  row->setSpacing(14);
  row->addWidget(labelFor(note_, kind_.noteLabel));
  row->addWidget(hint, 1);
  return row;
}

void FilePage::addPreview(QGridLayout& area) {
  preview_ = new PicturePreview(this);
  connect(file_, &FilePanel::looked, this, &FilePage::showPicture);
  area.addWidget(labelFor(preview_, u"Preview:"_s), 0, 1);
  area.addWidget(preview_, 1, 1);
}

QLayout* FilePage::counterRow() {
  remaining_ = readOnlyField(u"charactersRemaining"_s, this);
  remaining_->setFocusPolicy(Qt::ClickFocus);
  remaining_->setAlignment(Qt::AlignRight);
  remaining_->setFixedWidth(remaining_->fontMetrics().averageCharWidth() * counterDigits + 16);
  connect(note_, &MessageEdit::textChanged, this, &FilePage::recount);
  recount();
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  row->addWidget(labelFor(remaining_, u"Characters remaining:"_s));
  row->addWidget(remaining_);
  row->addStretch(1);
  return row;
}

SendOutcome FilePage::sendMessage() {
  const SendOutcome outcome = flow_.send(draft());
  refresh();
  return outcome;
}

QWidget* FilePage::controlAtFault(SendOutcome outcome) const {
  if (outcome == SendOutcome::FileAtFault) return file_->pathEdit();
  return outcome == SendOutcome::MessageAtFault ? note_ : SendPage::controlAtFault(outcome);
}

void FilePage::clearMessage() {
  file_->clear();
  if (note_) note_->clear();
}

void FilePage::showEvent(QShowEvent* event) {
  SendPage::showEvent(event);
  refresh();
}

void FilePage::dragEnterEvent(QDragEnterEvent* event) {
  if (FilePanel::draggedFile(*event->mimeData()).isEmpty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void FilePage::dropEvent(QDropEvent* event) {
  const QString path = FilePanel::draggedFile(*event->mimeData());
  if (path.isEmpty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
  file_->choose(path);
}

void FilePage::recount() {
  remaining_->setText(QString::number(longestWapNote - note_->length()));
}

void FilePage::showPicture(const FileLook& look) {
  const bool isKnown = !file_->path().isEmpty() && !look.facts.name.isEmpty();
  preview_->display(look.picture, isKnown ? u"No preview"_s : QString());
}

}  // namespace parlexo
