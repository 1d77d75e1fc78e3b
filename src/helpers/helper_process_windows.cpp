// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>

#include "helpers/helper_process.h"

namespace parlexo {
namespace {

constexpr UINT crashed = 3;  // the exit code of abort()
constexpr LONGLONG ticksPerSecond = 10'000'000;

// By default the system would show a dialog or start a debugger.
LONG WINAPI terminateOnCrash(EXCEPTION_POINTERS* /*exception*/) {
  TerminateProcess(GetCurrentProcess(), crashed);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

void sandboxProcess(std::size_t memory, unsigned seconds) {
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  SetUnhandledExceptionFilter(terminateOnCrash);
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags =
      JOB_OBJECT_LIMIT_PROCESS_MEMORY | JOB_OBJECT_LIMIT_PROCESS_TIME | JOB_OBJECT_LIMIT_ACTIVE_PROCESS;
  limits.BasicLimitInformation.PerProcessUserTimeLimit.QuadPart = seconds * ticksPerSecond;
  limits.BasicLimitInformation.ActiveProcessLimit = 1;
  limits.ProcessMemoryLimit = memory;
  // The handle is deliberately not closed: the limits must last as long as the process.
  const HANDLE job = CreateJobObjectW(nullptr, nullptr);
  SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  AssignProcessToJobObject(job, GetCurrentProcess());
  _setmode(_fileno(stdin), _O_BINARY);
}

}  // namespace parlexo
