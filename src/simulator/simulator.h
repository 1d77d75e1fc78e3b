// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <vector>

#include <QDateTime>
#include <QString>
#include <QStringList>

#include "simulator/accepted_message.h"
#include "simulator/fault.h"
#include "simulator/simulator_options.h"

namespace parlexo::simulator {

/// A gateway inside the process. It serves the locator document and all operations over TCP, on a separate
/// thread. Thread-safe.
class Simulator {
 public:
  explicit Simulator(const Options& options = {});
  ~Simulator();
  Simulator(const Simulator&) = delete;
  Simulator& operator=(const Simulator&) = delete;

  /// Starts to listen. Returns true on success or if already listening; otherwise errorText() is set.
  /// Accounts, sessions and messages survive stop() and another start().
  [[nodiscard]] bool start();
  /// Closes all connections and stops listening; a no-op if stopped.
  void stop();
  /// The port of the last successful start; 0 before.
  [[nodiscard]] quint16 port() const;
  /// Why the last start failed.
  [[nodiscard]] QString errorText() const;
  /// The URL "http://HOST:PORT" for the client's option --site.
  [[nodiscard]] QString site() const;

  /// Adds a fault. If several match a call, only the oldest applies. Returns false without a change if
  /// `fault` is invalid according to findProblem().
  bool setFault(const Fault& fault);
  void clearFaults();

  /// Ends all sessions; further calls with their tokens return ResultCode::SessionExpired.
  void expireSessions();
  /// Sets an account's balance, rounded to hundredths. Returns false if there is no such user.
  bool setBalance(const QString& user, double balance);
  /// The balance of an account; 0 if there is no such user.
  [[nodiscard]] double balance(const QString& user) const;
  /// Adds an earlier transaction to an account's history without changing the balance. Returns false if there
  /// is no such user.
  bool rememberTransaction(const QString& user, double amount, const QDateTime& date,
                           const QString& description);
  [[nodiscard]] EmailPreferences emailPreferences(const QString& user) const;
  [[nodiscard]] bool hasPassword(const QString& user, const QString& password) const;
  /// Adds a receipt of an earlier message of `user`, which has been delivered.
  void rememberReceipt(const QString& user, const QString& receipt);

  /// All accepted messages, oldest first.
  [[nodiscard]] std::vector<AcceptedMessage> messages() const;
  /// All calls in order; a download of the locator document is recorded as "locator".
  [[nodiscard]] std::vector<RecordedCall> calls() const;
  /// The operation names of calls().
  [[nodiscard]] QStringList calledOperations() const;
  [[nodiscard]] int openSessions() const;
  [[nodiscard]] QString news() const;
  void setNews(const QString& news);

 private:
  class Engine;
  std::unique_ptr<Engine> engine_;
};

}  // namespace parlexo::simulator
