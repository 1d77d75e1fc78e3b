// SPDX-License-Identifier: GPL-3.0-or-later
#include <variant>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include "app/application.h"
#include "app/core/command_line.h"
#include "app/platform.h"
#include "base/program.h"
#include "demo/demo.h"
#include "tour/tour.h"
#include "ui/look.h"

namespace {

using namespace parlexo;
using namespace Qt::StringLiterals;

const QString programName = u"parlexo-tour"_s;
constexpr int tourFailed = 1;

struct TourOptions {
  ProgramOptions client;
  QString pictures;  ///< absolute path of the folder for the screenshots
};

// Uses a QCoreApplication, so that --help, --version and usage errors work without a display.
std::variant<TourOptions, EarlyExit> parseArguments(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(
      u"Drives the client through all its pages on the built-in gateway simulator: sends messages, queries\n"
      "their status and saves a screenshot of every step."_s);
  parser.addPositionalArgument(u"DIR"_s, u"Folder for the screenshots; created if missing."_s);
  const auto parsed = parseCommandLine(parser, programName, QCoreApplication::arguments());
  if (const auto* exit = std::get_if<EarlyExit>(&parsed)) return *exit;
  if (parser.positionalArguments().size() != 1)
    return wrongUsage(programName, u"exactly one folder for the screenshots is needed"_s);
  return TourOptions{.client = std::get<ProgramOptions>(parsed),
                     .pictures = QDir(parser.positionalArguments().constFirst()).absolutePath()};
}

int runTour(const TourOptions& options) {
  Demo demo(options.client.dataDir);
  const QString problem = demo.start();
  if (!problem.isEmpty())
    return printEarlyExit(failure(tourFailed, programName, u"cannot start the demo: "_s + problem));
  ProgramOptions client = options.client;
  client.dataDir = demo.dataFolder();
  if (client.site.isEmpty()) client.site = demo.site();
  // The tour finds controls as Qt widgets, which native file dialogs lack.
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  Application application(client);
  Tour tour(createTourPlan(Demo::user(), Demo::password(), options.pictures), options.pictures);
  tour.start();
  const int exitCode = application.run();
  return exitCode == 0 && !tour.succeeded() ? tourFailed : exitCode;
}

int runProgram(int argc, char** argv) {
  prepareProcess();
  const auto parsed = parseArguments(argc, argv);
  if (const auto* exit = std::get_if<EarlyExit>(&parsed)) return printEarlyExit(*exit);
  QApplication application(argc, argv);
  // Otherwise the program would quit between the login and the main window, when no window is open.
  QApplication::setQuitOnLastWindowClosed(false);
  applyLook(application);
  return runTour(std::get<TourOptions>(parsed));
}

}  // namespace

int main(int argc, char** argv) {
  return endProcess(runProgram(argc, argv));
}
