// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/test.h"

namespace parlexo::test {

/// Another process that locks a file until leave().
class OtherProcess {
 public:
  /// `lock` is LOCK_SH or LOCK_EX.
  OtherProcess(const QString& path, int lock) {
    const int file = ::open(qPrintable(path), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    int ends[2] = {-1, -1};
    EXPECT_EQ(::flock(file, lock | LOCK_NB), 0);
    EXPECT_EQ(::pipe(ends), 0);
    leash_ = ends[1];
    process_ = ::fork();
    if (process_ == 0) waitForRelease(ends);
    // The lock belongs to the open file description, which only the child has now.
    ::close(file);
    ::close(ends[0]);
  }
  ~OtherProcess() { leave(); }
  OtherProcess(const OtherProcess&) = delete;
  OtherProcess& operator=(const OtherProcess&) = delete;

  void leave() {
    if (process_ <= 0) return;
    ::close(leash_);
    EXPECT_EQ(::waitpid(process_, nullptr, 0), process_);
    process_ = -1;
  }

 private:
  [[noreturn]] static void waitForRelease(const int (&ends)[2]) {
    ::close(ends[1]);
    char byte = 0;
    while (::read(ends[0], &byte, 1) > 0) continue;
    ::_exit(0);
  }

  int leash_ = -1;
  pid_t process_ = -1;
};

}  // namespace parlexo::test
