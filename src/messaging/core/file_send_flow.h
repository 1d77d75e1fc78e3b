// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>

#include "messaging/core/file_message_kind.h"
#include "messaging/core/messaging_services.h"
#include "messaging/core/schedule.h"
#include "messaging/core/send_flow.h"

namespace parlexo {

/// What an MMS, fax or WAP page holds when the user presses Send.
struct FileDraft {
  QString path;
  QString note;         ///< the description of an MMS, the note of a WAP push
  QString displayList;  ///< the recipients as the page shows them; blank stops the send
  QString numbersList;  ///< the numbers that the message goes to, joined by commas
  Schedule schedule;
};

/// Sends one file to all its recipients and tells the user what became of it.
class FileSendFlow {
 public:
  /// `services` must refer to objects that outlive the flow.
  FileSendFlow(const MessagingServices& services, FileKind kind);

  /// The gateway is asked to send at most once. The file is open while the calls before the send are made, so
  /// that what was measured is what is sent.
  [[nodiscard]] SendOutcome send(const FileDraft& draft) const;

 private:
  /// Why `draft` is not sent, of which the user is told; nothing when it may be.
  [[nodiscard]] std::optional<SendOutcome> refusalOf(const FileDraft& draft) const;
  [[nodiscard]] bool checkLength(MessageFile& file, const QString& path) const;
  [[nodiscard]] FileBytes read(MessageFile& file, const QString& path) const;
  void reportCannotOpen(const QString& path) const;

  MessagingServices services_;
  const FileMessageKind& kind_;
  SendFlow flow_;
};

}  // namespace parlexo
