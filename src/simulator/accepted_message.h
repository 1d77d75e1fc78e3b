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

/// A message that the gateway has taken for delivery.
struct AcceptedMessage {
  MessageType type = MessageType::Sms;
  QString user;
  QString text;          ///< as a person reads it; the description of an MMS, the note of a WAP push
  QByteArray rawText;    ///< as it came over the wire
  bool unicode = false;  ///< the text came in its hexadecimal form
  bool flash = false;
  QStringList numbers;   ///< every recipient as given, failed ones too
  QStringList receipts;  ///< one for each number, "FAIL" for a failed one
  QString fileName;
  std::int64_t fileSize = 0;          ///< bytes
  QByteArray fileSha256;              ///< lower-case hexadecimal; empty when there is no file
  QString senderId;                   ///< empty when the session has set none
  std::optional<QDateTime> schedule;  ///< UTC; none for "now"
  QDateTime time;                     ///< when it was accepted, UTC
  int parts = 1;                      ///< SMS that each recipient gets
  std::int64_t costCents = 0;         ///< what it took from the balance
};

/// One operation that a client has asked for, whatever became of it.
struct RecordedCall {
  QString operation;
  QString session;  ///< as sent; empty for operations without one
};

}  // namespace parlexo::simulator
