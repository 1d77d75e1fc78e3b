// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>

#include "base/program_folder.h"

namespace parlexo {

ProgramFolder findProgramFolder() {
  return {QCoreApplication::applicationDirPath()};
}

}  // namespace parlexo
