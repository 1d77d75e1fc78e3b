// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "connection/client/gateway.h"
#include "messaging/core/messaging_services.h"
#include "messaging/core/status_log.h"

namespace parlexo {

/// The result of a status query, as counts of receipts.
struct StatusQueryOutcome {
  int received = 0;
  int undetermined = 0;  ///< the call failed, or was not made after an earlier failure
  int notQueried = 0;    ///< left when the user cancelled
  int failedSends = 0;   ///< the gateway never accepted the message and so has no status

  /// The outcome for the user, such as "2 could not be determined."; empty if all statuses were received.
  [[nodiscard]] QString text() const;

  Q_DECLARE_TR_FUNCTIONS(StatusQueryOutcome)
};

/// Queries the gateway for the current status of messages and updates the status log.
class StatusQueryFlow {
  Q_DECLARE_TR_FUNCTIONS(StatusQueryFlow)

 public:
  /// Called with each entry whose status was received.
  using Updated = std::function<void(const StatusEntry& entry)>;

  /// `services` must refer to objects that outlive the flow.
  explicit StatusQueryFlow(const MessagingServices& services) : services_(services) {}

  /// Queries the receipts one by one, skipping those of failed sends. Shows the progress and offers Cancel
  /// after 3 s. A failed call is skipped; the query stops after three transport failures in a row or when the
  /// session has expired. The first failure, or the expired session, is reported once at the end, because a
  /// message box would stop a long query until the user returns. Saves the log if any status was received.
  StatusQueryOutcome query(const QStringList& receipts, const Updated& updated) const;

 private:
  using StatusReply = Reply<protocol::getStatusResponse>;
  class Run;

  void callForEach(const QStringList& receipts, Run& run, const Updated& updated) const;
  void report(const StatusReply& failure) const;

  MessagingServices services_;
};

}  // namespace parlexo
