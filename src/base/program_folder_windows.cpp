// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <array>

#include <QDir>
#include <QFileInfo>

#include "base/program_folder.h"

namespace parlexo {

ProgramFolder findProgramFolder() {
  // The longest path that the system knows.
  std::array<wchar_t, 32768> path{};
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  if (length == 0) return {{}, GetLastError()};
  const QFileInfo program(QString::fromWCharArray(path.data(), static_cast<int>(length)));
  return {QDir::toNativeSeparators(program.absolutePath())};
}

}  // namespace parlexo
