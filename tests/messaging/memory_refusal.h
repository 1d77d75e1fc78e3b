// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace parlexo::test {

/// While it lives, requests for memory of `bytes`, or up to 16 more, are refused; all others are granted.
class MemoryRefusal {
 public:
  explicit MemoryRefusal(std::size_t bytes);
  ~MemoryRefusal();
  MemoryRefusal(const MemoryRefusal&) = delete;
  MemoryRefusal& operator=(const MemoryRefusal&) = delete;
};

}  // namespace parlexo::test
