// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

#include "connection/client/gateway.h"
#include "messaging/core/message_traits.h"
#include "messaging/core/messaging_services.h"
#include "messaging/core/schedule.h"

namespace parlexo {

/// The result of a send. Any failure has been reported to the user.
enum class SendOutcome {
  MessageAtFault,     ///< not sent because of the text or note
  FileAtFault,        ///< not sent because of the file
  RecipientsAtFault,  ///< not sent because of the recipients
  NotSent,            ///< refused or failed for any other reason
  OutcomeUnknown,     ///< the request went out and no readable reply came
  PartlyFailed,       ///< accepted for some of the numbers
  Delivered,          ///< accepted for all numbers
};

/// The reply to a send operation of any message type.
struct SendReply {
  bool answered = false;  ///< a readable reply came
  int code = 0;           ///< result code of the gateway; 0 for success
  QString receipts;
  bool outcomeUnknown = false;
};

/// `reply` without its operation's response type.
template <class Response>
[[nodiscard]] SendReply toSendReply(const Reply<Response>& reply) {
  return {.answered = reply.answered(),
          .code = reply->nErrorCode,
          .receipts = fromWire(reply->sListReciepts),
          .outcomeUnknown = reply.outcomeUnknown()};
}

/// The steps that sending has in common for all message types. A step that returns false has reported the
/// reason; the send must stop then.
class SendFlow {
  Q_DECLARE_TR_FUNCTIONS(SendFlow)

 protected:
  /// `services` must refer to objects that outlive the flow.
  SendFlow(const MessagingServices& services, MessageType type)
      : services_(services), traits_(messageTraits(type)) {}

  [[nodiscard]] const MessagingServices& services() const { return services_; }
  [[nodiscard]] const MessageTraits& traits() const { return traits_; }

  /// Checks the list that the page shows, not the numbers to send to.
  [[nodiscard]] bool checkRecipients(const QString& displayList) const;
  /// Returns false if the account's balance was zero when last read.
  [[nodiscard]] bool checkBalance() const;
  /// Prepares the gateway for the next message: cancels an earlier schedule, then sets the schedule and the
  /// sender ID if there are any.
  [[nodiscard]] bool announce(const Schedule& schedule) const;
  /// Reports `reply`. Adds the receipts of an accepted message for `numbers` to the status log and saves it;
  /// asks for a new login if the session has expired.
  [[nodiscard]] SendOutcome finish(const SendReply& reply, const QString& numbers) const;

 private:
  [[nodiscard]] bool cancelSchedule() const;
  [[nodiscard]] bool setSchedule(const QString& value) const;
  [[nodiscard]] bool setSenderId() const;
  [[nodiscard]] bool isAccepted(const SendReply& reply) const;
  void record(const QString& receipts, const QString& numbers) const;

  MessagingServices services_;
  const MessageTraits& traits_;
};

}  // namespace parlexo
