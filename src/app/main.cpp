// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>
#include <variant>

#include <QApplication>

#include "app/application.h"
#include "app/core/command_line.h"
#include "app/process.h"
#include "base/program.h"
#include "demo/demo.h"
#include "ui/look.h"

using namespace Qt::StringLiterals;

namespace {

using namespace parlexo;

constexpr int demoFailed = 1;

int endAtOnce(const ImmediateEnd& end) {
  std::fputs(qUtf8Printable(end.output), end.exitCode == 0 ? stdout : stderr);
  return end.exitCode;
}

int runDemo(ProgramOptions options) {
  Demo demo(options.dataDir);
  const QString problem = demo.start();
  if (!problem.isEmpty())
    return endAtOnce({demoFailed, u"parlexo-client: the demo can't start: %1\n"_s.arg(problem)});
  options.dataDir = demo.dataFolder();
  if (options.site.isEmpty()) options.site = demo.site();
  return Application(options).run();
}

// The command line is read before there is an application object, so that --help works without a display.
int runProgram(int argc, char** argv) {
  prepareProcess();
  const auto parsed = parseCommandLine(programArguments(argc, argv));
  if (const auto* end = std::get_if<ImmediateEnd>(&parsed)) return endAtOnce(*end);
  QApplication application(argc, argv);
  // Between login and main window no window is open, and that must not end the event loops to come.
  QApplication::setQuitOnLastWindowClosed(false);
  applyLook(application);
  const auto& options = std::get<ProgramOptions>(parsed);
  return options.demo ? runDemo(options) : Application(options).run();
}

}  // namespace

int main(int argc, char** argv) {
  return parlexo::endProcess(runProgram(argc, argv));
}
