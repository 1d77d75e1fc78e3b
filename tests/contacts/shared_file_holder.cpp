// SPDX-License-Identifier: GPL-3.0-or-later
// shared-file-holder PATH MODE: opens a file as the contact store does, says "held" or "refused", and keeps
// it until its input ends. The other user in tests of share modes.

#include <cstdio>

#include <QCoreApplication>
#include <QStringList>

#include "contacts/shared_file.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) return 2;
  parlexo::SharedFile file;
  const auto mode = static_cast<parlexo::SharedFile::Mode>(arguments[2].toInt());
  const bool isOpen = file.open(arguments[1], mode) == parlexo::SharedFile::OpenResult::Opened;
  std::puts(isOpen ? "held" : "refused");
  std::fflush(stdout);
  while (std::getchar() != EOF) continue;
  return 0;
}
