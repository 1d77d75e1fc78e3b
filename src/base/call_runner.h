// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <utility>

namespace parlexo {

/// A flag that one side raises and the other polls. Copies share the flag. Thread-safe.
class CancelFlag {
 public:
  void raise() const { raised_->store(true, std::memory_order_relaxed); }
  [[nodiscard]] bool isRaised() const { return raised_->load(std::memory_order_relaxed); }

 private:
  std::shared_ptr<std::atomic<bool>> raised_ = std::make_shared<std::atomic<bool>>(false);
};

/// Runs one blocking task while the program stays responsive. To the caller it is a synchronous call.
class CallRunner {
 public:
  using Task = std::function<void(const CancelFlag& cancel)>;

  virtual ~CallRunner() = default;

  /// Runs `task`, possibly on another thread. The task must own everything it uses, because a cancelled task
  /// that does not return is abandoned. It should end soon after `cancel` is raised. Returns true if the task
  /// has ended and its results may be read, false if it was abandoned, threw, or could not be started.
  [[nodiscard]] virtual bool run(Task task) = 0;

 protected:
  CallRunner() = default;
  CallRunner(const CallRunner&) = default;
  CallRunner& operator=(const CallRunner&) = default;
};

/// Runs tasks on the calling thread: for tests, command-line tools and code that is on a worker thread
/// already.
class DirectCallRunner final : public CallRunner {
 public:
  /// Every task gets `cancel`.
  explicit DirectCallRunner(CancelFlag cancel = {}) : cancel_(std::move(cancel)) {}

  [[nodiscard]] bool run(Task task) override {
    task(cancel_);
    return true;
  }

 private:
  CancelFlag cancel_;
};

}  // namespace parlexo
