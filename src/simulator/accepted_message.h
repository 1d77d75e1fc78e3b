// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include "base/message_type.h"

namespace parlexo::simulator {

/// A message that the gateway has accepted for delivery.
struct AcceptedMessage {
  MessageType type = MessageType::Sms;
  QString user{};
  QString text{};        ///< decoded; the description of an MMS or the note of a WAP push
  QByteArray rawText{};  ///< as received
  bool unicode = false;  ///< the text was received in its hexadecimal form
  bool flash = false;
  QStringList numbers{};   ///< all recipients as given, including failed ones
  QStringList receipts{};  ///< one for each number, "FAIL" for a failed one
  QString fileName{};
  std::int64_t fileSize = 0;            ///< bytes
  QByteArray fileSha256{};              ///< lower-case hexadecimal; empty without a file
  QString senderId{};                   ///< empty if the session has set none
  std::optional<QDateTime> schedule{};  ///< UTC; nullopt for immediate delivery
  QDateTime time{};                     ///< when it was accepted, in UTC
  int parts = 1;                        ///< number of SMS for each recipient
  std::int64_t costCents = 0;           ///< amount deducted from the balance
};

/// An operation that a client has called, regardless of its outcome.
struct RecordedCall {
  QString operation;
  QString session;  ///< as sent; empty for operations without a session
};

/// Describes `message` in several log lines: type, recipients, text and file. The log is for developers and
/// not translated.
[[nodiscard]] QStringList toLogLines(const AcceptedMessage& message);

}  // namespace parlexo::simulator
