// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// The folder that holds the executable.
struct ProgramFolder {
  QString path;             ///< with native separators; empty if the system call failed
  unsigned long error = 0;  ///< the system error code, 0 on success
};

[[nodiscard]] ProgramFolder findProgramFolder();

/// Returns the path of the helper program `name` (without ".exe"), which is installed beside the program or,
/// by Linux packages, in libexec. Empty if there is none.
[[nodiscard]] QString helperProgram(const QString& name);

/// Ends the process with `exitCode`; call as the last statement of main() and return the result. On Windows
/// it does not return, because the C runtime's clean-up may hang there.
int endProcess(int exitCode);

}  // namespace parlexo
