// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <vector>

#include <QDateTime>
#include <QHostAddress>
#include <QString>

#include "base/product.h"

namespace parlexo::simulator {

/// An account's settings for messages sent by e-mail.
struct EmailPreferences {
  bool enabled = false;
  QString code{};
  bool filter = false;
  QString address1{};
  QString address2{};
  QString address3{};
  bool splitLong = false;
  bool endAtDoubleLine = false;
  bool endAtKeyword = false;

  [[nodiscard]] bool operator==(const EmailPreferences&) const = default;
};

/// The initial state of an account.
struct AccountOptions {
  QString user;
  QString password;
  double balance = 100.0;
  bool maySetSenderId = true;
  EmailPreferences email;
};

/// Price of a message to one number, in hundredths of the account's currency; for an SMS, of each part.
struct Tariff {
  std::int64_t smsPart = 5;
  std::int64_t mms = 25;
  std::int64_t fax = 15;
  std::int64_t wap = 10;
  std::int64_t voice = 30;
};

/// The configuration of a simulator.
struct Options {
  QHostAddress address{QHostAddress::LocalHost};
  quint16 port = 0;  ///< 0 for any free port
  std::vector<AccountOptions> accounts{{QStringLiteral("demo"), QStringLiteral("demo1234"), 100.0, true, {}}};
  Tariff tariff;
  std::chrono::milliseconds latency{0};                  ///< added to every reply
  std::chrono::milliseconds sessionLifetime{3'600'000};  ///< idle time after which a session expires
  std::chrono::milliseconds deliveryStep{5'000};         ///< time between two delivery statuses
  std::chrono::milliseconds requestTimeout{30'000};      ///< for receiving a request, and between requests
  int uploadRate = 0;                                    ///< bytes per second and connection; 0 for no limit
  int scheduleDaysAhead = 365;                           ///< how far in the future messages can be scheduled
  int maxFileSize = 2 * 1024 * 1024;                     ///< bytes, of fax and voice files
  int maxMobileFileSize = 50 * 1024;                     ///< bytes, of MMS and WAP files
  QString clientVersion = QLatin1String(parlexo::clientVersion);
  int protocolVersion = parlexo::protocolVersion;
  QString news;  ///< empty for a text about the simulator
  /// Returns the current time in UTC; replaceable for tests. Called from several threads.
  std::function<QDateTime()> now = [] { return QDateTime::currentDateTimeUtc(); };
  /// Called with each log line, on the simulator's thread.
  std::function<void(const QString& line)> log;
};

}  // namespace parlexo::simulator
