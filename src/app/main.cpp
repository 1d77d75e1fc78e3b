// SPDX-License-Identifier: GPL-3.0-or-later
#include <variant>

#include <QApplication>

#include "app/application.h"
#include "app/core/command_line.h"
#include "app/platform.h"
#include "base/program.h"
#include "demo/demo.h"
#include "ui/look.h"

using namespace Qt::StringLiterals;

namespace {

using namespace parlexo;

constexpr int demoFailed = 1;

// Uses a QCoreApplication, so that --help, --version and usage errors work without a display.
std::variant<ProgramOptions, EarlyExit> parseArguments(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  return parseCommandLine(QCoreApplication::arguments());
}

int runDemo(ProgramOptions options) {
  Demo demo(options.dataDir);
  const QString problem = demo.start();
  if (!problem.isEmpty())
    return printEarlyExit(
        failure(demoFailed, u"parlexo-client"_s,
                QCoreApplication::translate("CommandLine", "cannot start the demo: %1").arg(problem)));
  options.dataDir = demo.dataFolder();
  if (options.site.isEmpty()) options.site = demo.site();
  return Application(options).run();
}

int runProgram(int argc, char** argv) {
  prepareProcess();
  const auto parsed = parseArguments(argc, argv);
  if (const auto* exit = std::get_if<EarlyExit>(&parsed)) return printEarlyExit(*exit);
  QApplication application(argc, argv);
  // Otherwise the program would quit between the login and the main window, when no window is open.
  QApplication::setQuitOnLastWindowClosed(false);
  applyLook(application);
  const auto& options = std::get<ProgramOptions>(parsed);
  return options.demo ? runDemo(options) : Application(options).run();
}

}  // namespace

int main(int argc, char** argv) {
  return parlexo::endProcess(runProgram(argc, argv));
}
