// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <map>
#include <optional>

#include <QDateTime>
#include <QString>

namespace parlexo::simulator {

/// The state of a login between calls.
struct Session {
  QString user;
  QDateTime lastUse;
  std::optional<QDateTime> schedule;  ///< delivery time of the next messages, UTC; nullopt for immediately
  QString senderId;                   ///< of the next message; empty for none
};

/// The open sessions by token. A session expires after it has been idle for the lifetime.
class SessionTable {
 public:
  explicit SessionTable(std::chrono::milliseconds lifetime) : lifetime_(lifetime) {}

  /// Opens a session and returns its unguessable token.
  [[nodiscard]] QString open(const QString& user, const QDateTime& now);
  /// Returns the session of `token` and restarts its idle time; null if there is none.
  [[nodiscard]] Session* use(const QString& token, const QDateTime& now);
  /// Returns false if there is no open session with this token.
  bool close(const QString& token, const QDateTime& now);
  void closeAll() { sessions_.clear(); }
  /// The number of open sessions.
  [[nodiscard]] int countOpen(const QDateTime& now);

 private:
  void removeExpired(const QDateTime& now);

  std::chrono::milliseconds lifetime_;
  std::map<QString, Session> sessions_;
};

}  // namespace parlexo::simulator
