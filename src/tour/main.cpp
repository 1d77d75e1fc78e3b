// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include "app/application.h"
#include "app/process.h"
#include "base/program.h"
#include "demo/demo.h"
#include "tour/tour.h"
#include "tour/tour_plan.h"
#include "ui/look.h"

namespace {

using namespace parlexo;
using namespace Qt::StringLiterals;

constexpr int wrongUsage = 2;

int fail(int exitCode, const QString& message) {
  std::fputs(qUtf8Printable(u"parlexo-tour: "_s + message + u'\n'), stderr);
  return exitCode;
}

int takeTour(ProgramOptions options, const QString& pictures) {
  Demo demo(options.dataDir);
  const QString problem = demo.start();
  if (!problem.isEmpty()) return fail(1, u"the demo can't start: "_s + problem);
  options.dataDir = demo.dataFolder();
  if (options.site.isEmpty()) options.site = demo.site();
  // The tour finds its way by Qt's own controls, which the system's file dialogs lack.
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  Application client(options);
  Tour tour(tourPlan(Demo::user(), Demo::password(), pictures), pictures);
  tour.start();
  const int exitCode = client.run();
  return exitCode == 0 && !tour.succeeded() ? 1 : exitCode;
}

int runProgram(int argc, char** argv) {
  prepareProcess();
  QApplication application(argc, argv);
  // Between login and main window no window is open, and that must not end the event loops to come.
  QApplication::setQuitOnLastWindowClosed(false);
  applyLook(application);
  QCommandLineParser parser;
  parser.setApplicationDescription(
      u"Drives the client through all its pages on the built-in simulator: sends a message, asks for its\n"
      "status and saves a picture of every step."_s);
  parser.addHelpOption();
  parser.addPositionalArgument(u"DIR"_s, u"Folder for the pictures."_s);
  const QCommandLineOption site(u"site"_s, u"Use the gateway whose locator document is at URL."_s, u"URL"_s);
  const QCommandLineOption data(u"data-dir"_s, u"Keep contacts, templates and settings in DIR."_s, u"DIR"_s);
  parser.addOptions({site, data});
  parser.process(application);
  if (parser.positionalArguments().size() != 1)
    return fail(wrongUsage, u"name one folder for the pictures"_s);
  ProgramOptions options;
  options.site = parser.value(site);
  if (parser.isSet(data)) options.dataDir = QDir(parser.value(data)).absolutePath();
  return takeTour(options, QDir(parser.positionalArguments().constFirst()).absolutePath());
}

}  // namespace

int main(int argc, char** argv) {
  return endProcess(runProgram(argc, argv));
}
