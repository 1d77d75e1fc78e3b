// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/helper_program.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace parlexo {

using namespace Qt::StringLiterals;

QString helperProgram(const QString& name) {
  const QString folder = QCoreApplication::applicationDirPath();
  return QStandardPaths::findExecutable(name, {folder, folder + u"/../libexec/parlexo"_s});
}

}  // namespace parlexo
