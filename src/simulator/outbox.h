// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <vector>

#include <QDateTime>
#include <QString>

#include "simulator/accepted_message.h"

namespace parlexo::simulator {

/// The messages on their way: hands out receipts and knows how far each message has come.
class Outbox {
 public:
  /// `started` makes the receipts of one run differ from those of every other.
  Outbox(std::chrono::milliseconds deliveryStep, const QDateTime& started);

  /// Takes `message` for delivery; gives every number its receipt, "FAIL" where `failed(number)`.
  template <class Failed>
  const AcceptedMessage& take(AcceptedMessage message, Failed failed) {
    for (const QString& number : message.numbers)
      message.receipts.append(failed(number) ? failedReceipt() : nextReceipt());
    return store(std::move(message));
  }

  /// How far the message with `receipt` has come for `user`; none when that user has no such message.
  [[nodiscard]] std::optional<QString> state(const QString& user, const QString& receipt,
                                             const QDateTime& now) const;
  /// Takes in a receipt of earlier days, long delivered.
  void remember(const QString& user, const QString& receipt);

  [[nodiscard]] const std::vector<AcceptedMessage>& messages() const { return messages_; }
  [[nodiscard]] static QString failedReceipt() { return QStringLiteral("FAIL"); }

 private:
  struct Delivery {
    QString user;
    QDateTime begins;  ///< invalid: delivered long ago
  };

  [[nodiscard]] QString nextReceipt();
  const AcceptedMessage& store(AcceptedMessage message);

  std::chrono::milliseconds deliveryStep_;
  QString receiptPrefix_;
  int lastReceipt_ = 0;
  std::vector<AcceptedMessage> messages_;
  std::map<QString, Delivery> deliveries_;
};

}  // namespace parlexo::simulator
