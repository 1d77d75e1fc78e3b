// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/status_query_flow.h"

#include <optional>

#include "base/message_texts.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "base/session_renewal.h"
#include "base/timeouts.h"
#include "messaging/core/receipts.h"
#include "messaging/core/status_file.h"
#include "protocol/result_code.h"

namespace parlexo {

namespace {

// Each call to an unreachable gateway takes the whole connect timeout.
constexpr int maxTransportFailures = 3;

QStringList withoutFailedSends(const QStringList& receipts) {
  QStringList accepted;
  for (const QString& receipt : receipts)
    if (!hasFailures(receipt)) accepted.append(receipt);
  return accepted;
}

QString queryProgressText(qsizetype number, qsizetype count) {
  return StatusQueryFlow::tr("Getting the status (%1 of %2)\u2026").arg(number).arg(count);
}

template <class Response>
bool isSuccess(const Reply<Response>& reply) {
  return reply.answered() && reply->nErrorCode == 0;
}

template <class Response>
bool hasExpiredSession(const Reply<Response>& reply) {
  return reply.answered() && reply->nErrorCode == protocol::ResultCode::SessionExpired;
}

}  // namespace

/// Counts the replies and decides when to stop.
class StatusQueryFlow::Run {
 public:
  explicit Run(qsizetype count) : count_(static_cast<int>(count)) {}

  void add(const StatusReply& reply) {
    const bool succeeded = isSuccess(reply);
    if (succeeded)
      ++received_;
    else if (!reply.cancelled())
      ++failed_;
    transportFailures_ = reply.answered() ? 0 : transportFailures_ + 1;
    isCancelled_ = reply.cancelled();
    const bool isExpired = hasExpiredSession(reply);
    isOver_ = isCancelled_ || isExpired || transportFailures_ == maxTransportFailures;
    // A cancelled call is not a failure.
    if (!succeeded && !isCancelled_ && (!failure_ || isExpired)) failure_ = reply;
  }

  [[nodiscard]] bool isOver() const { return isOver_; }
  /// The failure to report; nullopt if there was none.
  [[nodiscard]] const std::optional<StatusReply>& failure() const { return failure_; }
  [[nodiscard]] StatusQueryOutcome outcome() const {
    const int rest = count_ - received_ - failed_;
    if (isCancelled_) return {.received = received_, .undetermined = failed_, .notQueried = rest};
    return {.received = received_, .undetermined = failed_ + rest};
  }

 private:
  int count_;
  int received_ = 0;
  int failed_ = 0;
  int transportFailures_ = 0;  ///< in a row
  bool isCancelled_ = false;
  bool isOver_ = false;
  std::optional<StatusReply> failure_;
};

StatusQueryOutcome StatusQueryFlow::query(const QStringList& receipts, const Updated& updated) const {
  const QStringList accepted = withoutFailedSends(receipts);
  Run run(accepted.size());
  if (!accepted.isEmpty()) callForEach(accepted, run, updated);
  // A failed save is not reported: the log stays modified and the next save retries.
  if (services_.statusLog.isModified()) services_.statusFile.save(services_.statusLog);
  if (run.failure()) report(*run.failure());
  StatusQueryOutcome outcome = run.outcome();
  outcome.failedSends = static_cast<int>(receipts.size() - accepted.size());
  return outcome;
}

void StatusQueryFlow::callForEach(const QStringList& receipts, Run& run, const Updated& updated) const {
  const ProgressScope box(services_.progress, queryProgressText(1, receipts.size()));
  services_.progress.offerCancelAfter(timeouts::untilStatusCancel);
  for (qsizetype i = 0; i < receipts.size() && !run.isOver(); ++i) {
    services_.progress.setText(queryProgressText(i + 1, receipts.size()));
    const StatusReply reply =
        services_.gateway.call<&GatewayClient::getStatus>(services_.state.session, receipts[i]);
    run.add(reply);
    if (!isSuccess(reply)) continue;
    const StatusEntry* entry = services_.statusLog.setStatus(receipts[i], fromWire(reply->sStatus));
    if (entry) updated(*entry);
  }
}

void StatusQueryFlow::report(const StatusReply& failure) const {
  if (!failure.answered())
    services_.notifier.error(text(TextId::GatewayUnreachable));
  else if (hasExpiredSession(failure))
    renewSession(services_.notifier, services_.renewal);
  else
    services_.notifier.error(withNumber(TextId::StatusQueryError, failure->nErrorCode));
}

QString StatusQueryOutcome::text() const {
  QStringList remarks;
  if (undetermined > 0) remarks += tr("%1 could not be determined.").arg(undetermined);
  if (notQueried > 0) remarks += tr("Cancelled: %1 not asked for.").arg(notQueried);
  if (failedSends > 0)
    remarks += failedSends == 1 ? tr("1 failed message was left out.")
                                : tr("%1 failed messages were left out.").arg(failedSends);
  return remarks.join(QChar(u' '));
}

}  // namespace parlexo
