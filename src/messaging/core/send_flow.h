// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QString>

#include "base/message_texts.h"
#include "messaging/core/messaging_services.h"
#include "messaging/core/send_calls.h"

namespace parlexo {

/// What the page does with its form after a send.
enum class SendOutcome {
  MessageAtFault,     ///< not sent for its text or note, the user knows why: the form stays
  FileAtFault,        ///< the same for its file
  RecipientsAtFault,  ///< the same for its recipients
  NotSent,            ///< refused or failed for other reasons, which the user knows: the form stays
  OutcomeUnknown,     ///< sent, but no answer came: perhaps accepted, which the page says; the form stays
  PartlyFailed,       ///< accepted, but not for every number: the form stays
  Delivered,          ///< accepted for every number: the form is cleared
};

/// In what the kinds of message differ on their way out.
struct SendKind {
  QString typeWord;  ///< the kind in the status log: "SMS", "MMS", "Fax" or "WAP"
  SenderIdUse senderIdUse;
  TextId unreachable;  ///< shown when the gateway was not reached or its answer not understood
  TextId refused;      ///< shown with the gateway's code
  TextId someFailed;   ///< heads the list of numbers that failed
  TextId delivered;
};

/// What a send operation came back with, whatever its kind.
struct SendReply {
  bool answered = false;
  int code = 0;
  QString receipts;
  bool outcomeUnknown = false;  ///< the gateway may have accepted the message without our knowing
};

/// The way that every kind of message takes, in the steps that a kind may put checks of its own between.
/// Each step tells the user what is wrong and returns false when the send must be given up.
class SendFlow {
 public:
  /// One exchange: the send operation with the given session token.
  using Operation = std::function<SendReply(const QString& session)>;

  /// `services` must refer to objects that outlive the flow.
  SendFlow(const MessagingServices& services, SendKind kind) : services_(services), kind_(std::move(kind)) {}

  /// Looks at the list that the page shows, not at the numbers that will be sent.
  [[nodiscard]] bool checkRecipients(const QString& displayList) const;
  /// False once the account's balance was seen to be zero.
  [[nodiscard]] bool checkBalance() const;
  /// Schedule and sender ID.
  [[nodiscard]] bool announce(const Schedule& schedule) const;

  /// Calls `operation` once, under the progress box, and settles what comes back: messages, the log-in
  /// after an expired session, the status entries for `numbers` and the saving of the log.
  [[nodiscard]] SendOutcome deliver(const QString& numbers, const Operation& operation) const;

 private:
  [[nodiscard]] SendReply callUnderProgress(const Operation& operation) const;
  [[nodiscard]] bool accepted(const SendReply& reply) const;
  void record(const QString& receipts, const QString& numbers) const;

  MessagingServices services_;
  SendKind kind_;
};

}  // namespace parlexo
