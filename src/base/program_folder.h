// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// Where the program's file lies.
struct ProgramFolder {
  QString path;             ///< with the platform's separators; empty when the system would not tell
  unsigned long error = 0;  ///< the system's number for why it would not, else 0
};

[[nodiscard]] ProgramFolder findProgramFolder();

}  // namespace parlexo
