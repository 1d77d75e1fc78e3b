// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

#include "simulator/fault.h"
#include "simulator/simulator_options.h"

namespace parlexo::simulator {

/// The parsed command line of parlexo-simulator. If `help`, `version` or `problem` is set, the rest is
/// unused.
struct CommandLine {
  Options options;
  std::vector<Fault> faults;
  QString help;          ///< the text to print for --help
  bool version = false;  ///< print the version
  QString problem;       ///< what is wrong with the arguments; empty if they are valid
};

/// Parses `arguments`, whose first element is the program as it was called. Needs a QCoreApplication. The
/// texts are not translated, as the simulator is a tool for developers.
[[nodiscard]] CommandLine parseCommandLine(const QStringList& arguments);

}  // namespace parlexo::simulator
