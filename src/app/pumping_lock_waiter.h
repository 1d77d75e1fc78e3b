// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

#include <QElapsedTimer>
#include <QString>

#include "base/progress.h"
#include "contacts/lock_waiter.h"

namespace parlexo {

/// Waits for a file that somebody else holds without freezing the program: the progress box says so,
/// windows are repainted meanwhile, input is dropped.
class PumpingLockWaiter final : public LockWaiter {
 public:
  /// `step` is how long a pause takes. With a shorter one the clock runs faster in proportion.
  explicit PumpingLockWaiter(Progress& progress,
                             std::chrono::milliseconds step = std::chrono::milliseconds(500));

  [[nodiscard]] qint64 nowSeconds() override;
  void pause() override;
  void waitIsOver() override;

 private:
  void showBox();

  Progress& progress_;
  std::chrono::milliseconds step_;
  QElapsedTimer clock_;
  bool isWaiting_ = false;
  QString labelBefore_;  ///< null when there was no box
};

}  // namespace parlexo
