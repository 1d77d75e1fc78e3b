// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QCoreApplication>
#include <QString>

#include "messaging/core/message_file.h"
#include "messaging/core/schedule.h"
#include "messaging/core/send_flow.h"

namespace parlexo {

/// The contents of an MMS, fax or WAP page when the user presses Send.
struct FileDraft {
  QString path;
  QString note;         ///< the description of an MMS, the note of a WAP push
  QString displayList;  ///< the recipients that the page shows; an empty list is refused
  QString numbersList;  ///< the numbers to send to, separated by commas
  Schedule schedule;

  /// The path without its folders.
  [[nodiscard]] QString fileName() const;
};

/// Sends one file to all its recipients and reports the result.
class FileSendFlow : private SendFlow {
  Q_DECLARE_TR_FUNCTIONS(FileSendFlow)

 public:
  /// `services` must refer to objects that outlive the flow; `type` is one that carries a file.
  FileSendFlow(const MessagingServices& services, MessageType type) : SendFlow(services, type) {}

  /// Checks `draft` and sends it. Calls the send operation at most once. The file stays open during the calls
  /// before it, so the bytes sent are those that were checked.
  [[nodiscard]] SendOutcome send(const FileDraft& draft) const;

 private:
  /// Checks everything but the file itself and reports the first problem. Returns nullopt if there is none.
  [[nodiscard]] std::optional<SendOutcome> checkDraft(const FileDraft& draft) const;
  [[nodiscard]] bool checkLength(MessageFile& file, const QString& path) const;
  [[nodiscard]] bool read(MessageFile& file, const QString& path) const;
  void reportCannotOpen(const QString& path) const;
  [[nodiscard]] SendReply transmit(const FileDraft& draft, const MessageFile& file) const;
};

}  // namespace parlexo
