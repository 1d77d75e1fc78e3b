// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <variant>

#include <QString>
#include <QStringList>

namespace parlexo {

/// What the user asked for on the command line.
struct ProgramOptions {
  bool demo = false;  ///< run against a gateway simulator inside the process
  QString site;       ///< "http://HOST:PORT" of the locator's document; empty for the service's own
  QString dataDir;    ///< absolute folder for all files of this run; empty for the user's own
};

/// The program ends at once: with `output` on standard output when `exitCode` is 0, on standard error
/// otherwise.
struct ImmediateEnd {
  int exitCode = 0;
  QString output;
};

/// Reads the arguments after the program's name. Options that the toolkit understands, such as "-platform
/// offscreen", are passed over with their values. A wrong option ends with exit code 2.
[[nodiscard]] std::variant<ProgramOptions, ImmediateEnd> parseCommandLine(const QStringList& arguments);

}  // namespace parlexo
