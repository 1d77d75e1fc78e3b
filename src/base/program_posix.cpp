// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <QStandardPaths>

#include "base/program.h"

namespace parlexo {

using namespace Qt::StringLiterals;

ProgramFolder findProgramFolder() {
  return {QCoreApplication::applicationDirPath()};
}

QString helperProgram(const QString& name) {
  const QString folder = QCoreApplication::applicationDirPath();
  return QStandardPaths::findExecutable(name, {folder, folder + u"/../libexec/parlexo"_s});
}

int endProcess(int exitCode) {
  return exitCode;
}

}  // namespace parlexo
