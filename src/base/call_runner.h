// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>
#include <memory>

namespace parlexo {

/// A flag that one side raises and the other polls; copies share the flag. Safe between threads.
class CancelFlag {
 public:
  void raise() const { raised_->store(true, std::memory_order_relaxed); }
  [[nodiscard]] bool isRaised() const { return raised_->load(std::memory_order_relaxed); }

 private:
  std::shared_ptr<std::atomic<bool>> raised_ = std::make_shared<std::atomic<bool>>(false);
};

/// Runs one blocking task to its end while the program stays alive. To the caller it is a synchronous
/// call, whatever the runner does meanwhile.
class CallRunner {
 public:
  using Task = std::function<void(const CancelFlag& cancel)>;

  virtual ~CallRunner() = default;

  /// Runs `task`, possibly on another thread. The task must own all that it uses, because one
  /// that is cancelled and does not come back is left behind. It should end soon once `cancel` is raised.
  /// Returns true when the task has ended and its results may be read, false when it was left
  /// behind or could not do its work (it threw, or no thread was to be had).
  [[nodiscard]] virtual bool run(Task task) = 0;

 protected:
  CallRunner() = default;
  CallRunner(const CallRunner&) = default;
  CallRunner& operator=(const CallRunner&) = default;
};

/// Runs the task on the calling thread: for tests and command-line tools.
class DirectCallRunner final : public CallRunner {
 public:
  [[nodiscard]] bool run(Task task) override {
    task(CancelFlag());
    return true;
  }
};

}  // namespace parlexo
