// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include <QHostAddress>
#include <QString>

#include "base/product.h"
#include "simulator/clock.h"

namespace parlexo::simulator {

/// An account's wishes for messages sent by e-mail.
struct EmailPreferences {
  bool enabled = false;
  QString code;
  bool filter = false;
  QString address1;
  QString address2;
  QString address3;
  bool splitLong = false;
  bool endAtDoubleLine = false;
  bool endAtKeyword = false;

  [[nodiscard]] bool operator==(const EmailPreferences&) const = default;
};

/// An account as it is when the simulator starts.
struct AccountOptions {
  QString user;
  QString password;
  double balance = 100.0;
  bool maySetSenderId = true;
  EmailPreferences email;
};

/// Price of one message to one number, in hundredths of the account's currency. An SMS pays for each part.
struct Tariff {
  std::int64_t smsPart = 5;
  std::int64_t mms = 25;
  std::int64_t fax = 15;
  std::int64_t wap = 10;
  std::int64_t voice = 30;
};

/// How a simulator behaves; the defaults suit tests and demonstrations on one machine.
struct Options {
  QHostAddress address{QHostAddress::LocalHost};
  quint16 port = 0;  ///< 0 picks a free one
  std::vector<AccountOptions> accounts{{QStringLiteral("demo"), QStringLiteral("demo1234"), 100.0, true, {}}};
  Tariff tariff;
  std::chrono::milliseconds latency{0};                  ///< added to every answer
  std::chrono::milliseconds sessionLifetime{3'600'000};  ///< idle time after which a session has expired
  std::chrono::milliseconds deliveryStep{5'000};         ///< time from each delivery state to the next
  std::chrono::milliseconds requestTimeout{30'000};  ///< longest wait for a whole request, and between two
  int uploadRate = 0;                                ///< bytes a second taken in; 0 for no limit
  int scheduleDaysAhead = 365;
  int maxFileSize = 2 * 1024 * 1024;  ///< bytes of a fax or voice file
  int maxMobileFileSize = 50 * 1024;  ///< bytes of an MMS or WAP file
  QString clientVersion = QLatin1String(parlexo::clientVersion);
  int protocolVersion = parlexo::protocolVersion;
  QString news;                        ///< empty for a text about the simulator
  std::shared_ptr<const Clock> clock;  ///< none for the computer's own
  /// Receives the log line by line; called from the simulator's thread, one call at a time.
  std::function<void(const QString& line)> log;
};

}  // namespace parlexo::simulator
