// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>

#include <QString>

namespace parlexo {

/// How much of a file has been sent. Copies share the count. Thread-safe: one thread counts while another
/// displays.
class Transfer {
 public:
  explicit Transfer(std::int64_t totalBytes) : total_(totalBytes) {}

  [[nodiscard]] std::int64_t total() const { return total_; }
  [[nodiscard]] std::int64_t done() const { return done_->load(std::memory_order_relaxed); }
  void setDone(std::int64_t bytes) const { done_->store(bytes, std::memory_order_relaxed); }

 private:
  std::int64_t total_;
  std::shared_ptr<std::atomic<std::int64_t>> done_ = std::make_shared<std::atomic<std::int64_t>>(0);
};

/// Interface to the program's progress box, for code without widgets. Unless noted otherwise, functions are
/// no-ops while no box is shown.
class Progress {
 public:
  virtual ~Progress() = default;

  /// Shows the box with the label `text`, or with the default label if `text` is empty. A box that is already
  /// shown is raised and its label stays the same.
  virtual void show(const QString& text = {}) = 0;
  /// Changes the label; an empty `text` restores the default label. Repaints the box at most every 30 ms.
  virtual void setText(const QString& text) = 0;
  /// Displays the progress of `transfer` below the label until the box is hidden.
  virtual void setTransfer(const Transfer& /*transfer*/) {}
  /// Makes the box offer Cancel after its tasks have run for `wait` in total, instead of the longer default.
  virtual void offerCancelAfter(std::chrono::milliseconds /*wait*/) {}
  /// Hides the box.
  virtual void hide() = 0;
  /// The label; a null string while no box is shown.
  [[nodiscard]] virtual QString text() const { return {}; }

 protected:
  Progress() = default;
  Progress(const Progress&) = default;
  Progress& operator=(const Progress&) = default;
};

/// Shows the progress box for the duration of a scope.
class ProgressScope {
 public:
  explicit ProgressScope(Progress& progress, const QString& text = {}) : progress_(progress) {
    progress_.show(text);
  }
  ~ProgressScope() { progress_.hide(); }
  ProgressScope(const ProgressScope&) = delete;
  ProgressScope& operator=(const ProgressScope&) = delete;

 private:
  Progress& progress_;
};

}  // namespace parlexo
