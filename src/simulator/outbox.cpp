// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/outbox.h"

#include <algorithm>
#include <utility>

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

const QString notAccepted = u"Not accepted by gateway"_s;
const QString queued = u"Queued at gateway"_s;
const QString sent = u"Sent to network"_s;
const QString delivered = u"Delivered to handset"_s;

}  // namespace

Outbox::Outbox(std::chrono::milliseconds deliveryStep, const QDateTime& started)
    : deliveryStep_(deliveryStep),
      receiptPrefix_(QString::number(started.toSecsSinceEpoch(), 16).toUpper()) {}

std::optional<QString> Outbox::status(const QString& user, const QString& receipt,
                                      const QDateTime& now) const {
  if (receipt == failedReceipt()) return notAccepted;
  const auto it = deliveries_.find(receipt);
  if (it == deliveries_.end()) return std::nullopt;
  const auto& [owner, start] = it->second;
  if (owner != user) return std::nullopt;
  if (!start.isValid()) return delivered;
  const qint64 elapsed = start.msecsTo(now);
  if (elapsed < deliveryStep_.count()) return queued;
  return elapsed < 2 * deliveryStep_.count() ? sent : delivered;
}

void Outbox::addDelivered(const QString& user, const QString& receipt) {
  deliveries_[receipt] = {user, {}};
}

QString Outbox::nextReceipt() {
  return u"%1-%2"_s.arg(receiptPrefix_).arg(++lastReceipt_, 6, 10, QLatin1Char('0'));
}

const AcceptedMessage& Outbox::store(AcceptedMessage message) {
  const QDateTime start = std::max(message.schedule.value_or(message.time), message.time);
  for (const QString& receipt : std::as_const(message.receipts))
    if (receipt != failedReceipt()) deliveries_[receipt] = {message.user, start};
  messages_.push_back(std::move(message));
  return messages_.back();
}

}  // namespace parlexo::simulator
