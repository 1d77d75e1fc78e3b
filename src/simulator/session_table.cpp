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
  forgetExpired(now);
  QString token = newToken();
  sessions_[token] = Session{user, now, std::nullopt, {}};
  return token;
}

Session* SessionTable::use(const QString& token, const QDateTime& now) {
  forgetExpired(now);
  const auto found = sessions_.find(token);
  if (found == sessions_.end()) return nullptr;
  found->second.lastUse = now;
  return &found->second;
}

bool SessionTable::close(const QString& token, const QDateTime& now) {
  forgetExpired(now);
  return sessions_.erase(token) > 0;
}

int SessionTable::countOpen(const QDateTime& now) {
  forgetExpired(now);
  return static_cast<int>(sessions_.size());
}

void SessionTable::forgetExpired(const QDateTime& now) {
  std::erase_if(sessions_,
                [&](const auto& entry) { return entry.second.lastUse.msecsTo(now) >= lifetime_.count(); });
}

}  // namespace parlexo::simulator
