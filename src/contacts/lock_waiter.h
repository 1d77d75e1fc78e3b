// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace parlexo {

/// How the contact store spends the time until another user has closed a file. A program with windows
/// keeps them alive meanwhile; it must not call the store again from within pause().
class LockWaiter {
 public:
  virtual ~LockWaiter() = default;

  /// Whole seconds of a clock that never goes back; only differences mean anything.
  [[nodiscard]] virtual qint64 nowSeconds() = 0;
  /// Lets 500 milliseconds go by.
  virtual void pause() = 0;
  /// Called once after the last pause of an operation, whether or not the file was got.
  virtual void waitIsOver() {}

 protected:
  LockWaiter() = default;
  LockWaiter(const LockWaiter&) = default;
  LockWaiter& operator=(const LockWaiter&) = default;
};

/// Sleeps: for tools and for programs without windows.
class SleepingLockWaiter final : public LockWaiter {
 public:
  [[nodiscard]] qint64 nowSeconds() override;
  void pause() override;
};

}  // namespace parlexo
