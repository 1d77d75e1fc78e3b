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

/// A gateway that lives inside the process: it serves the locator document and all operations over a real
/// connection, on a thread of its own. Every function may be called from any thread.
class Simulator {
 public:
  explicit Simulator(const Options& options = {});
  ~Simulator();
  Simulator(const Simulator&) = delete;
  Simulator& operator=(const Simulator&) = delete;

  /// Begins to listen; true when it does or did already. On failure errorText() tells why (the port is taken
  /// or may not be used). Accounts, sessions and messages last from one start to the next.
  [[nodiscard]] bool start();
  /// Ends every connection and stops listening, so that clients are refused; harmless when stopped.
  void stop();
  /// The port of the last successful start; 0 before it.
  [[nodiscard]] quint16 port() const;
  [[nodiscard]] QString errorText() const;
  /// The address for the client's option --site, "http://HOST:PORT".
  [[nodiscard]] QString site() const;

  /// Adds a misbehaviour. Several may stand for the same operation: the oldest applies, one that is set for
  /// the next call goes away with it. False, and nothing set, when problemWith() the fault.
  bool setFault(const Fault& fault);
  void clearFaults();

  /// Makes every session answer 7 from now on.
  void expireSessions();
  /// Sets an account's balance, rounded to hundredths. False when there is no such user.
  bool setBalance(const QString& user, double balance);
  /// The balance of an account; 0 when there is no such user.
  [[nodiscard]] double balance(const QString& user) const;
  /// Writes a movement of earlier days into an account's history; the balance stays. False when there is no
  /// such user.
  bool rememberTransaction(const QString& user, double amount, const QDateTime& date,
                           const QString& description);
  [[nodiscard]] EmailPreferences emailPreferences(const QString& user) const;
  [[nodiscard]] bool hasPassword(const QString& user, const QString& password) const;
  /// Lets an account ask for a receipt of earlier days; it answers with the last delivery state.
  void rememberReceipt(const QString& user, const QString& receipt);

  /// Everything accepted for delivery, oldest first.
  [[nodiscard]] std::vector<AcceptedMessage> messages() const;
  /// Every operation asked for, in order; the locator's download stands as "locator".
  [[nodiscard]] std::vector<RecordedCall> calls() const;
  /// The names alone of calls().
  [[nodiscard]] QStringList calledOperations() const;
  [[nodiscard]] int openSessions() const;
  [[nodiscard]] QString news() const;
  void setNews(const QString& news);

 private:
  class Engine;
  std::unique_ptr<Engine> engine_;
};

}  // namespace parlexo::simulator
