#pragma once

#include <QElapsedTimer>

#include "contacts/lock_waiter.h"

namespace parlexo {

/// Waits for a file that somebody else holds without freezing the program: windows are repainted
/// meanwhile, input is dropped.
class PumpingLockWaiter final : public LockWaiter {
 public:
  PumpingLockWaiter() { clock_.start(); }

  [[nodiscard]] qint64 nowSeconds() override { return clock_.elapsed() / 1000; }
  void pause() override;

 private:
  QElapsedTimer clock_;
};

}  // namespace parlexo
