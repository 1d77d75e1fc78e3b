// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QString>
#include <QStringList>

#include "messaging/core/messaging_services.h"
#include "messaging/core/status_log.h"

namespace parlexo {

/// What came of a status query.
struct StatusQueryOutcome {
  int received = 0;
  int undetermined = 0;  ///< asked for without success, or not asked for any more after a failure
  int notAsked = 0;      ///< left when the user cancelled
  int failedSends = 0;   ///< never accepted by the gateway, which therefore has no status for them
};

/// The outcome for the user, as in "2 could not be determined."; empty when every status was received.
[[nodiscard]] QString statusQueryText(const StatusQueryOutcome& outcome);

/// Asks the gateway for the current status of messages and stores the answers in the status log.
class StatusQueryFlow {
 public:
  /// Called with each entry whose status was received.
  using Updated = std::function<void(const StatusEntry& entry)>;

  /// `services` must refer to objects that outlive the flow.
  explicit StatusQueryFlow(const MessagingServices& services) : services_(services) {}

  /// Asks for each receipt in turn but those that mark a failed send. The user sees how far the query is and
  /// can cancel it after 3 s. A receipt that fails is skipped. After three transport failures in a row, or
  /// when the session has expired, no more are asked for. The message for the first failure, or for the
  /// expired session, is shown once at the end, so that a long query does not stop half-way and wait for the
  /// user. What was received is kept in any case, and the log is saved when there was something.
  StatusQueryOutcome query(const QStringList& receipts, const Updated& updated) const;

 private:
  struct Answer {
    bool answered = true;
    bool cancelled = false;
    int code = 0;
    QString status;

    [[nodiscard]] bool isGood() const { return answered && code == 0; }
  };
  class Run;

  void askAll(const QStringList& receipts, Run& run, const Updated& updated) const;
  [[nodiscard]] Answer ask(const QString& receipt) const;
  void report(const Answer& failure) const;

  MessagingServices services_;
};

}  // namespace parlexo
