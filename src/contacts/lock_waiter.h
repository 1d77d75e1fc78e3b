// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <thread>

#include <QtGlobal>

namespace parlexo {

/// Waits until another user has closed a file. An implementation for a program with windows processes events
/// in pause(), which must not call the store.
class LockWaiter {
 public:
  virtual ~LockWaiter() = default;

  /// Returns whole seconds of a monotonic clock with an arbitrary origin.
  [[nodiscard]] virtual qint64 nowSeconds() = 0;
  /// Waits for 500 milliseconds.
  virtual void pause() = 0;
  /// Called once after the last pause of an operation, whether or not the file could be opened.
  virtual void waitIsOver() {}

 protected:
  LockWaiter() = default;
  LockWaiter(const LockWaiter&) = default;
  LockWaiter& operator=(const LockWaiter&) = default;
};

/// Blocks the thread. For tools and programs without windows.
class SleepingLockWaiter final : public LockWaiter {
 public:
  [[nodiscard]] qint64 nowSeconds() override {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::seconds>(now).count();
  }
  void pause() override { std::this_thread::sleep_for(std::chrono::milliseconds(500)); }
};

}  // namespace parlexo
