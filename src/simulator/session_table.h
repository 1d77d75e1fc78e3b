// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <map>
#include <optional>

#include <QDateTime>
#include <QString>

namespace parlexo::simulator {

/// What the gateway remembers between the calls of one login.
struct Session {
  QString user;
  QDateTime lastUse;
  std::optional<QDateTime> schedule;  ///< when the next messages go out, UTC; none for at once
  QString senderId;                   ///< for the next message; empty for none
};

/// The open sessions by their tokens. A session expires when it has not been used for its lifetime.
class SessionTable {
 public:
  explicit SessionTable(std::chrono::milliseconds lifetime) : lifetime_(lifetime) {}

  /// Opens a session and returns its token, which cannot be guessed.
  [[nodiscard]] QString open(const QString& user, const QDateTime& now);
  /// The live session with this token, its lifetime begun anew; null when there is none.
  [[nodiscard]] Session* use(const QString& token, const QDateTime& now);
  /// False when there was no live session with this token.
  bool close(const QString& token, const QDateTime& now);
  void closeAll() { sessions_.clear(); }
  [[nodiscard]] int countOpen(const QDateTime& now);

 private:
  void forgetExpired(const QDateTime& now);

  std::chrono::milliseconds lifetime_;
  std::map<QString, Session> sessions_;
};

}  // namespace parlexo::simulator
