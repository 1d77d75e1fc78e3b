// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/messaging/memory_refusal.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t nothing = std::numeric_limits<std::size_t>::max();
std::atomic<std::size_t> refusedSize = nothing;

bool isRefused(std::size_t size) {
  return size >= refusedSize && size - refusedSize <= 16;
}

}  // namespace

// NOLINTBEGIN(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): this is where memory comes from.
// All forms in use are replaced, as memory from one is freed by another.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return isRefused(size) ? nullptr : std::malloc(size > 0 ? size : 1);
}

void* operator new(std::size_t size) {
  void* memory = operator new(size, std::nothrow);
  if (!memory) throw std::bad_alloc();
  return memory;
}

void* operator new[](std::size_t size) {
  return operator new(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
  return operator new(size, tag);
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}

void operator delete[](void* memory) noexcept {
  std::free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}
// NOLINTEND(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)

namespace parlexo::test {

MemoryRefusal::MemoryRefusal(std::size_t bytes) {
  refusedSize = bytes;
}

MemoryRefusal::~MemoryRefusal() {
  refusedSize = nothing;
}

}  // namespace parlexo::test
