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
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/unsendable_hint.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int minNoteLines = 3;          // on the smallest screen
constexpr int noteVerticalPadding = 12;  // above and below the lines together

}  // namespace

FilePage::FilePage(const MessagingServices& services, MessageType type, QWidget* parent)
    : SendPage(services, type, parent), flow_(services, type) {
  setObjectName(QLatin1String(traits().objectName));
  setAcceptDrops(true);
  file_ = new FilePanel(tr(traits().fileLabel), services.settings, this);
  layOut(messageArea(), traits().noteLabel ? 1 : 0);
}

FileDraft FilePage::draft() const {
  return {.path = file_->path(),
          .note = note_ ? note_->text() : QString(),
          .displayList = recipientsPanel().recipients().displayList(),
          .numbersList = recipientsPanel().recipients().numbersList(),
          .schedule = schedule()};
}

void FilePage::refresh() {
  file_->setRequest({.limit = services().state.gateway.*messageTraits(messageType()).sizeLimit,
                     .countPages = traits().countsPages,
                     .thumbnailSize = preview_ ? preview_->maxPictureSize() : QSize()});
  file_->updateDetails();
}

QLayout* FilePage::messageArea() {
  auto* area = new QVBoxLayout;
  area->setSpacing(look::controlSpacing);
  area->addWidget(file_);
  if (traits().noteLabel) area->addLayout(noteArea(), 1);
  return area;
}

QLayout* FilePage::noteArea() {
  note_ = new MessageEdit(this);
  note_->setObjectName(u"noteEdit"_s);
  note_->setTextLimit(traits().noteLimit);
  // With the edit's default size hint, a small screen would have room for only one line of recipients.
  note_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  auto* area = new QGridLayout;
  area->setVerticalSpacing(look::controlSpacing);
  area->setHorizontalSpacing(look::sectionSpacing);
  area->addLayout(noteHeading(), 0, 0);
  area->addWidget(note_, 1, 0);
  if (traits().countsNote) area->addLayout(counterRow(), 2, 0);
  if (traits().previewsPicture) addPreview(*area);
  area->setColumnStretch(0, 1);
  area->setRowStretch(1, 1);
  area->setRowMinimumHeight(1, minNoteLines * note_->fontMetrics().lineSpacing() + noteVerticalPadding);
  return area;
}

QLayout* FilePage::noteHeading() {
  auto* hint = new UnsendableHint(this);
  connect(note_, &MessageEdit::textChanged, hint, [this, hint] { hint->check(note_->text()); });
  auto* row = new QHBoxLayout;
  row->setSpacing(look::sectionSpacing);
  row->addWidget(labelFor(note_, tr(traits().noteLabel)));
  row->addWidget(hint, 1);
  return row;
}

void FilePage::addPreview(QGridLayout& area) {
  preview_ = new PicturePreview(this);
  connect(file_, &FilePanel::detailsChanged, this, &FilePage::showThumbnail);
  area.addWidget(labelFor(preview_, tr("Preview:")), 0, 1);
  area.addWidget(preview_, 1, 1);
}

QLayout* FilePage::counterRow() {
  remaining_ = counterField(u"charactersRemaining"_s);
  connect(note_, &MessageEdit::textChanged, this, &FilePage::recount);
  recount();
  auto* row = new QHBoxLayout;
  row->setSpacing(look::controlSpacing);
  row->addWidget(labelFor(remaining_, tr("Characters remaining:")));
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
  remaining_->setText(QString::number(traits().noteLimit - note_->length()));
}

void FilePage::showThumbnail(const FileDetails& details) {
  const bool isRead = !file_->path().isEmpty() && !details.facts.name.isEmpty();
  preview_->display(details.thumbnail, isRead ? tr("No preview") : QString());
}

}  // namespace parlexo
