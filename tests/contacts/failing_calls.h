// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace parlexo::test {

/// The calls that can be made to fail. They are replaced by the linker, so that the tested code is unchanged.
enum class Call { Open, Status, Seek, Read, Write, Lock, Allocate };

/// Makes one call fail, after `passing` others, for a scope. Only one object may exist at a time.
class FailingCall {
 public:
  /// As `error`: the call throws an int.
  static constexpr int throwing = -1;

  /// The call fails with `error` as errno.
  FailingCall(Call call, int passing, int error);
  /// Every allocation of exactly `size` bytes fails.
  explicit FailingCall(std::size_t size);
  ~FailingCall();
  FailingCall(const FailingCall&) = delete;
  FailingCall& operator=(const FailingCall&) = delete;

  /// The number of failed calls so far.
  [[nodiscard]] int failures() const;
  /// The size of the first allocation.
  [[nodiscard]] std::size_t firstRequest() const;
};

}  // namespace parlexo::test
