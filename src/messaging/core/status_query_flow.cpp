// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/status_query_flow.h"

#include <chrono>
#include <optional>

#include "base/message_texts.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "base/timeouts.h"
#include "connection/client/gateway.h"
#include "messaging/core/receipts.h"
#include "messaging/core/session_expiry.h"
#include "messaging/core/status_file.h"
#include "protocol/result_code.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// A gateway that can't be reached takes the whole connect time-out for each attempt.
constexpr int mostTransportFailures = 3;

QStringList withoutFailedSends(const QStringList& receipts) {
  QStringList accepted;
  for (const QString& receipt : receipts)
    if (!hasFailures(receipt)) accepted.append(receipt);
  return accepted;
}

QString queryProgressText(qsizetype number, qsizetype count) {
  return u"Getting the status (%1 of %2)\u2026"_s.arg(number).arg(count);
}

}  // namespace

/// Counts what comes in and decides whether to go on.
class StatusQueryFlow::Run {
 public:
  explicit Run(qsizetype count) : count_(static_cast<int>(count)) {}

  void add(const Answer& answer) {
    if (answer.isGood())
      ++received_;
    else if (!answer.cancelled)
      ++failed_;
    transportFailures_ = answer.answered ? 0 : transportFailures_ + 1;
    isCancelled_ = answer.cancelled;
    const bool isExpired = answer.answered && answer.code == protocol::ResultCode::SessionExpired;
    isOver_ = isCancelled_ || isExpired || transportFailures_ == mostTransportFailures;
    // An exchange that ends because it was cancelled is no failure.
    if (!answer.isGood() && !isCancelled_ && (!failure_ || isExpired)) failure_ = answer;
  }

  [[nodiscard]] bool isOver() const { return isOver_; }
  [[nodiscard]] const std::optional<Answer>& failure() const { return failure_; }
  [[nodiscard]] StatusQueryOutcome outcome() const {
    const int rest = count_ - received_ - failed_;
    if (isCancelled_) return {.received = received_, .undetermined = failed_, .notAsked = rest};
    return {.received = received_, .undetermined = failed_ + rest};
  }

 private:
  int count_;
  int received_ = 0;
  int failed_ = 0;
  int transportFailures_ = 0;  ///< in a row
  bool isCancelled_ = false;
  bool isOver_ = false;
  std::optional<Answer> failure_;
};

StatusQueryOutcome StatusQueryFlow::query(const QStringList& receipts, const Updated& updated) const {
  const QStringList accepted = withoutFailedSends(receipts);
  Run run(accepted.size());
  if (!accepted.isEmpty()) askAll(accepted, run, updated);
  // A save that fails is repeated by the next one; the log stays modified.
  if (services_.statusLog.isModified()) services_.statusFile.save(services_.statusLog);
  if (run.failure()) report(*run.failure());
  StatusQueryOutcome outcome = run.outcome();
  outcome.failedSends = static_cast<int>(receipts.size() - accepted.size());
  return outcome;
}

void StatusQueryFlow::askAll(const QStringList& receipts, Run& run, const Updated& updated) const {
  const ProgressScope box(services_.progress, queryProgressText(1, receipts.size()));
  services_.progress.offerCancelAfter(timeouts::untilStatusCancel);
  for (qsizetype i = 0; i < receipts.size() && !run.isOver(); ++i) {
    services_.progress.setText(queryProgressText(i + 1, receipts.size()));
    const Answer answer = ask(receipts[i]);
    run.add(answer);
    if (!answer.isGood()) continue;
    if (const StatusEntry* entry = services_.statusLog.setStatus(receipts[i], answer.status)) updated(*entry);
  }
}

StatusQueryFlow::Answer StatusQueryFlow::ask(const QString& receipt) const {
  const auto reply = services_.gateway.call<&GatewayClient::getStatus>(services_.state.session, receipt);
  return {reply.answered(), reply.cancelled(), reply->nErrorCode, fromWire(reply->sStatus)};
}

void StatusQueryFlow::report(const Answer& failure) const {
  if (!failure.answered)
    services_.notifier.error(text(TextId::GatewayUnreachable));
  else if (failure.code == protocol::ResultCode::SessionExpired)
    renewSession(services_.notifier, services_.renewal);
  else
    services_.notifier.error(withNumber(TextId::StatusQueryError, failure.code));
}

QString statusQueryText(const StatusQueryOutcome& outcome) {
  QStringList remarks;
  if (outcome.undetermined > 0) remarks += u"%1 could not be determined."_s.arg(outcome.undetermined);
  if (outcome.notAsked > 0) remarks += u"Cancelled: %1 not asked for."_s.arg(outcome.notAsked);
  if (outcome.failedSends > 0)
    remarks += outcome.failedSends == 1 ? u"1 failed message was left out."_s
                                        : u"%1 failed messages were left out."_s.arg(outcome.failedSends);
  return remarks.join(u' ');
}

}  // namespace parlexo
