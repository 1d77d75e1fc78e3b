// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/command_line.h"

#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include <QCommandLineParser>

#include "protocol/result_code.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

constexpr quint16 defaultPort = 8080;

const char applicationDescription[] =
    R"(A messaging gateway for trying out and testing the Parlexo client. It answers every operation, delivers
nothing and logs each message. Start the client with --site and the address that is printed first.)";

const char details[] = R"(
Faults:
  OPERATION:KIND[=VALUE][:next]
  OPERATION is the name of an operation, "any" for all of them, or "locator" for downloads of the locator
  document. With ":next" the fault applies only to the next call, otherwise to all calls. If several faults
  match a call, the first one applies.

  refuse              close connections before reading from them ("any" only)
  close               execute the operation, then close without a reply
  cut                 execute the operation, then close after half of the reply
  late=MS             execute the operation, reply after MS milliseconds
  http500             reply with HTTP status 500; nothing is executed
  notxml              reply with a line of text that is not XML; nothing is executed
  soapfault[=REASON]  reply with a SOAP fault; nothing is executed
  code=N              reply with error code N; nothing is executed
  text=TEXT           execute the operation, replace the text of the reply by TEXT
  version=N           return another protocol version (getVersion only)
  clientversion=TEXT  announce another client version (locator only)
  badlocator          return a malformed locator document (locator only)

  For example: --fault sendSms:code=12:next --fault any:late=3000 --fault locator:badlocator

Simulation:
  A number that ends in 99, or is not "+" and digits, fails. Any other number gets a receipt, whose status
  changes from "Queued at gateway" to "Sent to network" and "Delivered to handset". A message costs, for each
  number: 0.05 for each SMS part, 0.25 as MMS, 0.15 as fax, 0.10 as WAP push, 0.30 as voice call.

Error codes:
)";

QString fullHelp(const QCommandLineParser& parser) {
  QString text = parser.helpText() + QString::fromLatin1(details);
  for (int number = 0; number <= toNumber(protocol::ResultCode::MessageTooLong); ++number)
    text += u"  %1  %2\n"_s.arg(number, 2).arg(
        QString::fromLatin1(protocol::describe(static_cast<protocol::ResultCode>(number))));
  return text;
}

std::optional<int> parseNumber(const QString& text, int min, int max) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  return isNumber && number >= min && number <= max ? std::optional<int>(number) : std::nullopt;
}

QString parseMilliseconds(std::chrono::milliseconds& target, const QString& value) {
  constexpr int max = 1'000'000'000;
  const std::optional<int> number = parseNumber(value, 0, max);
  if (!number) return u"needs a time in milliseconds"_s;
  target = std::chrono::milliseconds(*number);
  return {};
}

QString parsePort(CommandLine& line, const QString& value) {
  constexpr int maxPort = 65535;
  const std::optional<int> port = parseNumber(value, 0, maxPort);
  if (!port) return u"needs a port from 0 to 65535"_s;
  line.options.port = static_cast<quint16>(*port);
  return {};
}

QString parseAddress(CommandLine& line, const QString& value) {
  return line.options.address.setAddress(value) ? QString() : u"needs an IP address"_s;
}

QString parseAccount(CommandLine& line, const QString& value) {
  const QStringList words = value.split(u':');
  QString problem = u"needs USER:PASSWORD[:BALANCE[:nosenderid]]"_s;
  constexpr qsizetype maxWords = 4;
  if (words.size() < 2 || words.size() > maxWords || words[0].isEmpty() || words[1].isEmpty()) return problem;
  AccountOptions account{words[0], words[1], AccountOptions{}.balance, true, {}};
  bool isNumber = true;
  if (words.size() > 2) account.balance = words[2].toDouble(&isNumber);
  if (!isNumber || !std::isfinite(account.balance)) return problem;
  if (words.size() == maxWords && words[3] != QLatin1String("nosenderid")) return problem;
  account.maySetSenderId = words.size() < maxWords;
  line.options.accounts.push_back(account);
  return {};
}

QString parseFaultOption(CommandLine& line, const QString& value) {
  const auto parsed = parseFault(value);
  if (const auto* problem = std::get_if<QString>(&parsed)) return *problem;
  line.faults.push_back(std::get<Fault>(parsed));
  return {};
}

QString parseUploadRate(CommandLine& line, const QString& value) {
  constexpr int max = 1'000'000'000;
  const std::optional<int> rate = parseNumber(value, 0, max);
  if (!rate) return u"needs a number of bytes"_s;
  line.options.uploadRate = *rate;
  return {};
}

QString parseClientVersion(CommandLine& line, const QString& value) {
  line.options.clientVersion = value;
  return value.isEmpty() ? u"needs a version"_s : QString();
}

QString parseProtocolVersion(CommandLine& line, const QString& value) {
  bool isNumber = false;
  line.options.protocolVersion = value.toInt(&isNumber);
  return isNumber ? QString() : u"needs a number"_s;
}

struct OptionRule {
  const char* name;
  const char* valueName;
  const char* help;
  /// Parses a value into `line`. Returns what is wrong with it, or an empty string.
  QString (*parse)(CommandLine& line, const QString& value);
};

constexpr std::array optionRules = {
    OptionRule{"port", "N", "Port to listen on, 0 for a free one (8080).", parsePort},
    OptionRule{"listen", "ADDRESS", "IP address to listen on (127.0.0.1).", parseAddress},
    OptionRule{"account", "ACCOUNT",
               "An account as USER:PASSWORD[:BALANCE[:nosenderid]]; can be repeated (demo:demo1234:100).",
               parseAccount},
    OptionRule{"latency", "MS", "Delay of every reply (0).",
               [](CommandLine& line, const QString& value) {
                 return parseMilliseconds(line.options.latency, value);
               }},
    OptionRule{"upload-rate", "N", "Bytes per second accepted on each connection, 0 for no limit (0).",
               parseUploadRate},
    OptionRule{"session-lifetime", "MS", "Idle time after which a session expires (3600000).",
               [](CommandLine& line, const QString& value) {
                 return parseMilliseconds(line.options.sessionLifetime, value);
               }},
    OptionRule{"delivery-step", "MS", "Time between two delivery statuses (5000).",
               [](CommandLine& line, const QString& value) {
                 return parseMilliseconds(line.options.deliveryStep, value);
               }},
    OptionRule{"news", "TEXT", "The reply of getNews.",
               [](CommandLine& line, const QString& value) {
                 line.options.news = value;
                 return QString();
               }},
    OptionRule{"client-version", "TEXT",
               "Client version announced by the locator document (the current one).", parseClientVersion},
    OptionRule{"protocol-version", "N", "The reply of getVersion (the current one).", parseProtocolVersion},
    OptionRule{"fault", "FAULT", "A fault as described below; can be repeated.", parseFaultOption},
};

// Parses the values of all options into `line`. Returns what is wrong with the first bad one.
QString parseValues(CommandLine& line, const QCommandLineParser& parser) {
  const std::vector<AccountOptions> defaultAccounts = std::exchange(line.options.accounts, {});
  for (const OptionRule& rule : optionRules) {
    const QString name = QString::fromLatin1(rule.name);
    for (const QString& value : parser.values(name)) {
      const QString problem = rule.parse(line, value);
      if (!problem.isEmpty()) return u"--%1 %2: %3"_s.arg(name, value, problem);
    }
  }
  if (line.options.accounts.empty()) line.options.accounts = defaultAccounts;
  return {};
}

}  // namespace

CommandLine parseCommandLine(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QString::fromLatin1(applicationDescription));
  for (const OptionRule& rule : optionRules)
    parser.addOption({QString::fromLatin1(rule.name), QString::fromLatin1(rule.help),
                      QString::fromLatin1(rule.valueName)});
  const QCommandLineOption help({u"h"_s, u"help"_s}, u"Print this help and exit."_s);
  const QCommandLineOption version({u"v"_s, u"version"_s}, u"Print the version and exit."_s);
  parser.addOptions({help, version});

  CommandLine line;
  line.options.port = defaultPort;
  if (!parser.parse(arguments)) {
    line.problem = parser.errorText();
  } else if (const QStringList extra = parser.positionalArguments(); !extra.isEmpty()) {
    line.problem = u"unexpected argument \"%1\""_s.arg(extra.constFirst());
  } else if (parser.isSet(help)) {
    line.help = fullHelp(parser);
  } else {
    line.version = parser.isSet(version);
    line.problem = parseValues(line, parser);
  }
  return line;
}

}  // namespace parlexo::simulator
