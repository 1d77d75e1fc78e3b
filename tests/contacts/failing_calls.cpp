// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/contacts/failing_calls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <new>
#include <optional>

namespace {

using parlexo::test::Call;

struct Plan {
  Call call = Call::Open;
  int passing = 0;
  int error = 0;
  std::size_t size = 0;
  int failures = 0;
  std::size_t firstRequest = 0;
};

std::optional<Plan> plan;

// Sets errno and returns true if this call has to fail.
bool fails(Call call) {
  if (!plan || plan->call != call || plan->failures > 0 || plan->passing-- > 0) return false;
  ++plan->failures;
  if (plan->error == parlexo::test::FailingCall::throwing) throw 1;
  errno = plan->error;
  return true;
}

}  // namespace

// The linker option --wrap requires these names.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)
extern "C" {

int __real_open(const char* path, int flags, ...);
int __real_fstat(int handle, struct stat* status);
int __real_flock(int handle, int operation);
off_t __real_lseek(int handle, off_t offset, int whence);
ssize_t __real_read(int handle, void* buffer, size_t count);
ssize_t __real_write(int handle, const void* buffer, size_t count);

int __wrap_open(const char* path, int flags, ...) {
  if (fails(Call::Open)) return -1;
  std::va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return __real_open(path, flags, mode);
}

int __wrap_fstat(int handle, struct stat* status) {
  return fails(Call::Status) ? -1 : __real_fstat(handle, status);
}

int __wrap_flock(int handle, int operation) {
  return fails(Call::Lock) ? -1 : __real_flock(handle, operation);
}

off_t __wrap_lseek(int handle, off_t offset, int whence) {
  return fails(Call::Seek) ? -1 : __real_lseek(handle, offset, whence);
}

ssize_t __wrap_read(int handle, void* buffer, size_t count) {
  return fails(Call::Read) ? -1 : __real_read(handle, buffer, count);
}

ssize_t __wrap_write(int handle, const void* buffer, size_t count) {
  return fails(Call::Write) ? -1 : __real_write(handle, buffer, count);
}

}  // extern "C"
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)

void* operator new(std::size_t size) {
  if (plan && plan->firstRequest == 0) plan->firstRequest = size;
  if (plan && plan->call == Call::Allocate && plan->size == size) {
    ++plan->failures;
    throw std::bad_alloc();
  }
  if (void* memory = std::malloc(size)) return memory;  // NOLINT(cppcoreguidelines-no-malloc)
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);  // NOLINT(cppcoreguidelines-no-malloc)
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);  // NOLINT(cppcoreguidelines-no-malloc)
}

namespace parlexo::test {

FailingCall::FailingCall(Call call, int passing, int error) {
  plan = Plan{call, passing, error, 0, 0, 0};
}

FailingCall::FailingCall(std::size_t size) {
  plan = Plan{Call::Allocate, 0, ENOMEM, size, 0, 0};
}

FailingCall::~FailingCall() {
  plan.reset();
}

int FailingCall::failures() const {
  return plan->failures;
}

std::size_t FailingCall::firstRequest() const {
  return plan->firstRequest;
}

}  // namespace parlexo::test
