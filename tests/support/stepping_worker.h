// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include "connection/client/background_queue.h"

namespace parlexo::test {

/// Runs a task on the calling thread when the test calls finish().
struct SteppingWorker final : BackgroundWorker {
  void start(CallRunner::Task task, std::function<void()> onEnd) override {
    task_ = std::move(task);
    onEnd_ = std::move(onEnd);
    cancel_ = CancelFlag();
  }
  void cancel() override { cancel_.raise(); }

  [[nodiscard]] bool isBusy() const { return onEnd_ != nullptr; }
  [[nodiscard]] bool isCancelled() const { return cancel_.isRaised(); }

  /// Runs the pending task and reports its end.
  void finish() {
    std::exchange(task_, nullptr)(cancel_);
    std::exchange(onEnd_, nullptr)();
  }

 private:
  CallRunner::Task task_;
  std::function<void()> onEnd_;
  CancelFlag cancel_;
};

}  // namespace parlexo::test
