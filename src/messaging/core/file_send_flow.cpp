// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/file_send_flow.h"

#include <QDir>
#include <QFileInfo>

#include "base/notifier.h"
#include "base/progress.h"

namespace parlexo {

QString FileDraft::fileName() const {
  return QFileInfo(path).fileName();
}

SendOutcome FileSendFlow::send(const FileDraft& draft) const {
  if (const auto problem = checkDraft(draft)) return *problem;
  MessageFile file(draft.path);
  if (!checkLength(file, draft.path)) return SendOutcome::FileAtFault;
  if (!announce(draft.schedule)) return SendOutcome::NotSent;
  if (!read(file, draft.path)) return SendOutcome::FileAtFault;
  return finish(transmit(draft, file), draft.numbersList);
}

std::optional<SendOutcome> FileSendFlow::checkDraft(const FileDraft& draft) const {
  if (draft.path.isEmpty()) {
    services().notifier.error(tr(traits().noFile));
    return SendOutcome::FileAtFault;
  }
  if (!checkRecipients(draft.displayList)) return SendOutcome::RecipientsAtFault;
  if (draft.note.size() > traits().noteLimit) {
    services().notifier.error(text(traits().noteTooLong));
    return SendOutcome::MessageAtFault;
  }
  if (!checkBalance()) return SendOutcome::NotSent;
  return std::nullopt;
}

bool FileSendFlow::checkLength(MessageFile& file, const QString& path) const {
  if (!file.open()) {
    reportCannotOpen(path);
    return false;
  }
  if (file.length() <= services().state.gateway.*traits().sizeLimit) return true;
  services().notifier.error(text(traits().tooLarge));
  return false;
}

bool FileSendFlow::read(MessageFile& file, const QString& path) const {
  switch (file.read()) {
    case MessageFile::ReadResult::Done:
      return true;
    case MessageFile::ReadResult::NoMemory:
      services().notifier.error(text(traits().noMemory));
      return false;
    case MessageFile::ReadResult::Failed:
      reportCannotOpen(path);
      return false;
  }
  Q_UNREACHABLE();
}

void FileSendFlow::reportCannotOpen(const QString& path) const {
  services().notifier.error(withText(traits().cannotOpen, QDir::toNativeSeparators(path)));
}

SendReply FileSendFlow::transmit(const FileDraft& draft, const MessageFile& file) const {
  const ProgressScope box(services().progress);
  const Transfer transfer(file.length());
  services().progress.setTransfer(transfer);
  return traits().sendFile(services().gateway, services().state.session, draft, {file.bytes(), transfer});
}

}  // namespace parlexo
