#include <QCoreApplication>

#include "base/program_folder.h"

namespace parlexo {

ProgramFolder findProgramFolder() {
  return {QCoreApplication::applicationDirPath()};
}

}  // namespace parlexo
