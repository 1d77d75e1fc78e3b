// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <array>
#include <cstdio>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "base/program.h"

namespace parlexo {

ProgramFolder findProgramFolder() {
  std::array<wchar_t, 32768> path{};  // the longest path that Windows supports
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  if (length == 0) return {{}, GetLastError()};
  const QFileInfo program(QString::fromWCharArray(path.data(), static_cast<int>(length)));
  return {QDir::toNativeSeparators(program.absolutePath())};
}

QString helperProgram(const QString& name) {
  return QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
}

// At exit the MinGW-w64 runtime frees its thread-specific data under a lock. A system thread, for example of
// a security library, may have died while holding that lock, and the process would then hang.
int endProcess(int exitCode) {
  std::fflush(nullptr);
  TerminateProcess(GetCurrentProcess(), static_cast<UINT>(exitCode));
  return exitCode;
}

}  // namespace parlexo
