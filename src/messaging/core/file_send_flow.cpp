// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/file_send_flow.h"

#include <QDir>

#include "base/notifier.h"
#include "base/progress.h"

namespace parlexo {

FileSendFlow::FileSendFlow(const MessagingServices& services, FileKind kind)
    : services_(services), kind_(fileMessageKind(kind)), flow_(services, kind_.send) {}

SendOutcome FileSendFlow::send(const FileDraft& draft) const {
  MessageFile file(draft.path);
  if (const auto refusal = refusalOf(draft)) return *refusal;
  if (!checkLength(file, draft.path)) return SendOutcome::FileAtFault;
  if (!flow_.announce(draft.schedule)) return SendOutcome::NotSent;
  const FileBytes bytes = read(file, draft.path);
  if (!bytes) return SendOutcome::FileAtFault;
  return flow_.deliver(draft.numbersList, [&](const QString& session) {
    const Transfer transfer(file.length());
    services_.progress.setTransfer(transfer);
    return kind_.operation(services_.gateway,
                           {session, draft.note, file.name(), {bytes, transfer}, draft.numbersList});
  });
}

std::optional<SendOutcome> FileSendFlow::refusalOf(const FileDraft& draft) const {
  if (draft.path.isEmpty()) {
    services_.notifier.error(kind_.noFile);
    return SendOutcome::FileAtFault;
  }
  if (!flow_.checkRecipients(draft.displayList)) return SendOutcome::RecipientsAtFault;
  if (kind_.limitsNote && draft.note.size() > longestMmsDescription) {
    services_.notifier.error(text(TextId::MmsDescriptionTooLong));
    return SendOutcome::MessageAtFault;
  }
  if (!flow_.checkBalance()) return SendOutcome::NotSent;
  return std::nullopt;
}

bool FileSendFlow::checkLength(MessageFile& file, const QString& path) const {
  if (!file.open()) {
    reportCannotOpen(path);
    return false;
  }
  if (file.length() <= services_.state.gateway.*kind_.limit) return true;
  services_.notifier.error(text(kind_.tooLarge));
  return false;
}

FileBytes FileSendFlow::read(MessageFile& file, const QString& path) const {
  MessageFile::Content content = file.read();
  switch (content.reading) {
    case MessageFile::Reading::Done:
      break;
    case MessageFile::Reading::NoMemory:
      services_.notifier.error(text(kind_.noMemory));
      break;
    case MessageFile::Reading::Failed:
      reportCannotOpen(path);
      break;
  }
  return content.bytes;
}

void FileSendFlow::reportCannotOpen(const QString& path) const {
  services_.notifier.error(withText(kind_.cannotOpen, QDir::toNativeSeparators(path)));
}

}  // namespace parlexo
