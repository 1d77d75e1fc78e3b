// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/command_line.h"

#include <cstdio>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QUrl>

#include "base/product.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int wrongUsageCode = 2;
const QString clientProgram = u"parlexo-client"_s;
const QString siteOption = u"site"_s;
const QString dataDirOption = u"data-dir"_s;

// QApplication evaluates these later and removes them. They are declared so that the parser skips them with
// their values and still refuses unknown options.
QList<QCommandLineOption> toolkitOptions() {
  QList<QCommandLineOption> options;
  for (const auto* flag : {"reverse", "nograb", "dograb", "widgetcount"})
    options << QCommandLineOption(QLatin1String(flag));
  for (const auto* name :
       {"platform", "platformtheme", "platformpluginpath", "plugin", "qwindowgeometry", "qwindowtitle",
        "qwindowicon", "style", "stylesheet", "session", "display", "geometry", "title", "icon", "name"})
    options << QCommandLineOption(QLatin1String(name), {}, u"VALUE"_s);
  for (QCommandLineOption& option : options) option.setFlags(QCommandLineOption::HiddenFromHelp);
  return options;
}

QList<QCommandLineOption> clientOptions() {
  return {{siteOption,
           QCoreApplication::translate("CommandLine",
                                       "Download the locator document from this web site, not from %1.")
               .arg(defaultServiceHost()),
           u"http://HOST:PORT"_s},
          {dataDirOption,
           QCoreApplication::translate("CommandLine",
                                       "Keep contacts, templates, the status log and the settings in DIR."),
           u"DIR"_s}};
}

bool isSite(const QString& text) {
  const QUrl url(text, QUrl::StrictMode);
  const bool bare = (url.path().isEmpty() || url.path() == u"/"_s) && !url.hasQuery() && !url.hasFragment();
  return url.isValid() && url.scheme() == u"http"_s && !url.host().isEmpty() && url.userInfo().isEmpty() &&
         bare;
}

// Returns what is wrong with the values of clientOptions(); empty if nothing is.
QString findProblem(const QCommandLineParser& parser) {
  for (const QString& option : {siteOption, dataDirOption}) {
    // A value that looks like an option means that the actual value was forgotten.
    const QString value = parser.value(option);
    if (parser.isSet(option) && (value.isEmpty() || value.startsWith(u"--"_s)))
      return QCoreApplication::translate("CommandLine", "option \"--%1\" needs a value").arg(option);
  }
  const QString site = parser.value(siteOption);
  if (parser.isSet(siteOption) && !isSite(site))
    return QCoreApplication::translate("CommandLine", "\"%1\" is not a site such as http://127.0.0.1:8080")
        .arg(site);
  return {};
}

}  // namespace

int printEarlyExit(const EarlyExit& exit) {
  std::fputs(qUtf8Printable(exit.output), exit.exitCode == 0 ? stdout : stderr);
  return exit.exitCode;
}

EarlyExit failure(int exitCode, const QString& program, const QString& problem) {
  return {exitCode, u"%1: %2\n"_s.arg(program, problem)};
}

EarlyExit wrongUsage(const QString& program, const QString& problem) {
  return failure(wrongUsageCode, program,
                 QCoreApplication::translate("CommandLine", "%1\nTry \"%2 --help\".").arg(problem, program));
}

std::variant<ProgramOptions, EarlyExit> parseCommandLine(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QCoreApplication::translate(
      "CommandLine", "Sends messages through the Parlexo gateway and shows their delivery status."));
  const QCommandLineOption demo(
      u"demo"_s, QCoreApplication::translate(
                     "CommandLine",
                     "Try the program with a built-in gateway simulator and sample contacts. The "
                     "account is demo, its password demo1234."));
  parser.addOption(demo);
  auto parsed = parseCommandLine(parser, clientProgram, arguments);
  auto* options = std::get_if<ProgramOptions>(&parsed);
  if (!options) return parsed;
  if (const QStringList extra = parser.positionalArguments(); !extra.isEmpty())
    return wrongUsage(
        clientProgram,
        QCoreApplication::translate("CommandLine", "unexpected argument \"%1\"").arg(extra.constFirst()));
  options->demo = parser.isSet(demo);
  return parsed;
}

std::variant<ProgramOptions, EarlyExit> parseCommandLine(QCommandLineParser& parser, const QString& program,
                                                         const QStringList& arguments) {
  const QCommandLineOption version({u"v"_s, u"version"_s},
                                   QCoreApplication::translate("CommandLine", "Print the version and exit."));
  const QCommandLineOption help({u"h"_s, u"help"_s},
                                QCoreApplication::translate("CommandLine", "Print this help and exit."));
  parser.addOptions(clientOptions());
  parser.addOptions({version, help});
  parser.addOptions(toolkitOptions());
  // Qt's own options begin with a single dash.
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  if (!parser.parse(arguments)) return wrongUsage(program, parser.errorText());
  if (parser.isSet(help)) return EarlyExit{0, parser.helpText()};
  if (parser.isSet(version)) return EarlyExit{0, u"Parlexo Client %1\n"_s.arg(QLatin1String(clientVersion))};
  if (const QString problem = findProblem(parser); !problem.isEmpty()) return wrongUsage(program, problem);
  ProgramOptions options;
  options.site = parser.value(siteOption);
  if (options.site.endsWith(u'/')) options.site.chop(1);
  if (parser.isSet(dataDirOption)) options.dataDir = QDir(parser.value(dataDirOption)).absolutePath();
  return options;
}

}  // namespace parlexo
