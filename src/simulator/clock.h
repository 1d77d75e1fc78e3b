// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <mutex>

#include <QDateTime>

namespace parlexo::simulator {

/// Where the simulator gets the time of day from, so that tests can let hours pass without waiting.
/// Implementations are called from several threads.
class Clock {
 public:
  virtual ~Clock() = default;

  /// The present moment, in UTC.
  [[nodiscard]] virtual QDateTime now() const = 0;

 protected:
  Clock() = default;
  Clock(const Clock&) = default;
  Clock& operator=(const Clock&) = default;
};

/// The computer's own clock.
class SystemClock final : public Clock {
 public:
  [[nodiscard]] QDateTime now() const override { return QDateTime::currentDateTimeUtc(); }
};

/// A clock that stands still until it is moved on.
class ManualClock final : public Clock {
 public:
  explicit ManualClock(const QDateTime& start) : now_(start.toUTC()) {}

  [[nodiscard]] QDateTime now() const override {
    const std::lock_guard lock(mutex_);
    return now_;
  }
  void advance(std::chrono::milliseconds time) {
    const std::lock_guard lock(mutex_);
    now_ = now_.addMSecs(time.count());
  }

 private:
  mutable std::mutex mutex_;
  QDateTime now_;
};

}  // namespace parlexo::simulator
