// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>

#include "base/progress.h"
#include "contacts/lock_waiter.h"

namespace parlexo {

/// Waits for a file that is locked by another process. Meanwhile the progress box says so, windows are
/// repainted and user input is dropped.
class PumpingLockWaiter final : public LockWaiter {
  Q_DECLARE_TR_FUNCTIONS(PumpingLockWaiter)

 public:
  /// `progress` must outlive this object. `step` is the duration of a pause; nowSeconds() counts two steps as
  /// a second, so that tests can shorten all timeouts.
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
  QString previousText_;  ///< null if there was no box
};

}  // namespace parlexo
