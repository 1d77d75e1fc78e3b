// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace parlexo {

/// Settings of the whole process that must hold before anything else: a connection that the other side has
/// closed must end a call with an error, never the program with a signal; what the program prints goes to
/// the console that it was started from.
void prepareProcess();

/// What stands behind the program's name on its command line.
[[nodiscard]] QStringList programArguments(int argc, char** argv);

}  // namespace parlexo
