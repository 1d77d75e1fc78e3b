// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <variant>

#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace parlexo {

/// The command-line options of the client.
struct ProgramOptions {
  bool demo = false;  ///< run against a gateway simulator inside the process
  QString site;       ///< URL "http://HOST:PORT" of the locator document; empty for the default service
  QString dataDir;    ///< absolute path of the folder for all files; empty for the user's default folders
};

/// A program that ends without starting up: after --help, --version or wrong usage.
struct EarlyExit {
  int exitCode = 0;
  QString output;  ///< for standard output if `exitCode` is 0, otherwise for standard error
};

/// Prints the output of `exit` and returns its exit code.
int printEarlyExit(const EarlyExit& exit);

/// Returns an exit with `exitCode` and the message "PROGRAM: PROBLEM".
[[nodiscard]] EarlyExit failure(int exitCode, const QString& program, const QString& problem);

/// Returns the exit for a command line that can't be used: exit code 2, the problem and a pointer to --help.
[[nodiscard]] EarlyExit wrongUsage(const QString& program, const QString& problem);

/// Parses `arguments`, whose first element is the program as it was called. Needs an application object (a
/// QCoreApplication is enough). Qt's own options, such as "-platform offscreen", are accepted and ignored.
[[nodiscard]] std::variant<ProgramOptions, EarlyExit> parseCommandLine(const QStringList& arguments);

/// Like the overload above, for another program that runs the client. The options --site, --data-dir, --help
/// and --version and Qt's own are added to `parser`, which must not have parsed anything yet. Positional
/// arguments are left to the caller. `program` is the program's name in messages.
[[nodiscard]] std::variant<ProgramOptions, EarlyExit> parseCommandLine(QCommandLineParser& parser,
                                                                       const QString& program,
                                                                       const QStringList& arguments);

}  // namespace parlexo
