// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/session_table.h"

#include <array>

#include <QByteArray>
#include <QRandomGenerator>

namespace parlexo::simulator {

namespace {

QString newToken() {
  std::array<quint32, 4> random{};
  QRandomGenerator::system()->fillRange(random.data(), random.size());
  const auto* bytes = reinterpret_cast<const char*>(random.data());
  return QString::fromLatin1(QByteArray(bytes, sizeof random).toHex());
}

}  // namespace

QString SessionTable::open(const QString& user, const QDateTime& now) {
  removeExpired(now);
  QString token = newToken();
  sessions_[token] = Session{user, now, std::nullopt, {}};
  return token;
}

Session* SessionTable::use(const QString& token, const QDateTime& now) {
  removeExpired(now);
  const auto it = sessions_.find(token);
  if (it == sessions_.end()) return nullptr;
  it->second.lastUse = now;
  return &it->second;
}

bool SessionTable::close(const QString& token, const QDateTime& now) {
  removeExpired(now);
  return sessions_.erase(token) > 0;
}

int SessionTable::countOpen(const QDateTime& now) {
  removeExpired(now);
  return static_cast<int>(sessions_.size());
}

void SessionTable::removeExpired(const QDateTime& now) {
  std::erase_if(sessions_,
                [&](const auto& entry) { return entry.second.lastUse.msecsTo(now) >= lifetime_.count(); });
}

}  // namespace parlexo::simulator
