// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

namespace parlexo {

/// How much of a file has gone out. Copies share the count: one thread counts while another shows.
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

}  // namespace parlexo
