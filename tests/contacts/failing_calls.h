// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace parlexo {

/// What a test can let fail. The system calls are replaced when the test program is linked, so that the
/// code under test is the very code of the program.
enum class Call { Open, Status, Seek, Read, Write, Lock, Allocate };

/// While it lives, one call of a kind fails: the one after `passing` others. One object at a time.
class FailingCall {
 public:
  /// Makes the call throw an int instead, as a fault in a library might.
  static constexpr int throwing = -1;

  /// The call gives `error` as errno.
  FailingCall(Call call, int passing, int error);
  /// Instead: every request for exactly `size` bytes of memory fails.
  explicit FailingCall(std::size_t size);
  ~FailingCall();
  FailingCall(const FailingCall&) = delete;
  FailingCall& operator=(const FailingCall&) = delete;

  /// How often the call failed so far.
  [[nodiscard]] int failures() const;
  /// The size of the first request for memory so far.
  [[nodiscard]] std::size_t firstRequest() const;
};

}  // namespace parlexo
