// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include <QDateTime>
#include <QString>

#include "simulator/accepted_message.h"

namespace parlexo::simulator {

/// The accepted messages with their receipts and delivery statuses.
class Outbox {
 public:
  /// The delivery status advances every `deliveryStep`. The start time makes receipts unique across runs.
  Outbox(std::chrono::milliseconds deliveryStep, const QDateTime& started);

  /// Accepts `message` and adds a receipt for each number, "FAIL" if `failed(number)`.
  template <class Failed>
  const AcceptedMessage& accept(AcceptedMessage message, Failed failed) {
    for (const QString& number : message.numbers)
      message.receipts.append(failed(number) ? failedReceipt() : nextReceipt());
    return store(std::move(message));
  }

  /// Returns the delivery status of `receipt`, or nullopt if `user` has no such message.
  [[nodiscard]] std::optional<QString> status(const QString& user, const QString& receipt,
                                              const QDateTime& now) const;
  /// Adds the receipt of an earlier message that has been delivered.
  void addDelivered(const QString& user, const QString& receipt);

  [[nodiscard]] const std::vector<AcceptedMessage>& messages() const { return messages_; }
  [[nodiscard]] static QString failedReceipt() { return QStringLiteral("FAIL"); }

 private:
  [[nodiscard]] QString nextReceipt();
  const AcceptedMessage& store(AcceptedMessage message);

  std::chrono::milliseconds deliveryStep_;
  QString receiptPrefix_;
  int lastReceipt_ = 0;
  std::vector<AcceptedMessage> messages_;
  /// User and start of delivery by receipt; an invalid start means delivered.
  std::map<QString, std::pair<QString, QDateTime>> deliveries_;
};

}  // namespace parlexo::simulator
