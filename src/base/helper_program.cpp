#include "base/helper_program.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace parlexo {

QString helperProgram(const QString& name) {
  const QString folder = QCoreApplication::applicationDirPath();
  return QStandardPaths::findExecutable(name, {folder, folder + QStringLiteral("/../libexec/parlexo")});
}

}  // namespace parlexo
