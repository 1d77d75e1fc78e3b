// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include "base/background_runner.h"
#include "base/call_runner.h"

namespace parlexo {

/// Runs calls that the user waits for with another runner, and pauses background work meanwhile.
class ForegroundRunner final : public CallRunner {
 public:
  /// Both arguments must outlive this object.
  ForegroundRunner(CallRunner& runner, BackgroundRunner& background)
      : runner_(runner), background_(background) {}

  [[nodiscard]] bool run(Task task) override {
    const Pause pause(background_);
    return runner_.run(std::move(task));
  }

 private:
  class Pause {
   public:
    explicit Pause(BackgroundRunner& background) : background_(background) { background_.pause(); }
    ~Pause() { background_.resume(); }
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;

   private:
    BackgroundRunner& background_;
  };

  CallRunner& runner_;
  BackgroundRunner& background_;
};

}  // namespace parlexo
