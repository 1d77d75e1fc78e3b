// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>

#include "helpers/helper_process.h"

namespace parlexo {
namespace {

constexpr UINT crashed = 3;  // as the C library's abort()
constexpr LONGLONG ticksPerSecond = 10'000'000;

// Else the system would show a window, or call a debugger.
LONG WINAPI endAtOnce(EXCEPTION_POINTERS* /*what*/) {
  TerminateProcess(GetCurrentProcess(), crashed);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

void confineHelper(std::size_t memory, unsigned seconds) {
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  SetUnhandledExceptionFilter(endAtOnce);
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags =
      JOB_OBJECT_LIMIT_PROCESS_MEMORY | JOB_OBJECT_LIMIT_PROCESS_TIME | JOB_OBJECT_LIMIT_ACTIVE_PROCESS;
  limits.BasicLimitInformation.PerProcessUserTimeLimit.QuadPart = seconds * ticksPerSecond;
  limits.BasicLimitInformation.ActiveProcessLimit = 1;
  limits.ProcessMemoryLimit = memory;
  // The job lasts as long as its process, and so does the handle.
  const HANDLE job = CreateJobObjectW(nullptr, nullptr);
  SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  AssignProcessToJobObject(job, GetCurrentProcess());
  _setmode(_fileno(stdin), _O_BINARY);
}

}  // namespace parlexo
