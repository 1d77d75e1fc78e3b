// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

#include "simulator/fault.h"
#include "simulator/simulator_options.h"

namespace parlexo::simulator {

/// What the command line of parlexo-simulator asks for.
struct CommandLine {
  Options options;
  std::vector<Fault> faults;
  bool help = false;
  bool version = false;
  QString problem;  ///< what is wrong with the arguments; empty when nothing is
};

/// Reads the arguments that follow the program's name. Nothing is read behind the first problem.
[[nodiscard]] CommandLine readCommandLine(const QStringList& arguments);

/// The text of --help.
[[nodiscard]] QString helpText();

}  // namespace parlexo::simulator
