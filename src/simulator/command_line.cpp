// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/command_line.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

constexpr quint16 defaultPort = 8080;

// Takes one option's value; returns what is wrong with it, or nothing.
using Reader = QString (*)(CommandLine& line, const QString& value);

struct OptionRule {
  const char* name;
  Reader read;
};

std::optional<int> readNumber(const QString& text, int least, int most) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  return isNumber && number >= least && number <= most ? std::optional<int>(number) : std::nullopt;
}

QString readInto(std::chrono::milliseconds& target, const QString& value) {
  constexpr int most = 1'000'000'000;
  const std::optional<int> number = readNumber(value, 0, most);
  if (!number) return u"needs a time in milliseconds"_s;
  target = std::chrono::milliseconds(*number);
  return {};
}

QString readPort(CommandLine& line, const QString& value) {
  constexpr int mostPort = 65535;
  const std::optional<int> port = readNumber(value, 0, mostPort);
  if (!port) return u"needs a port from 0 to 65535"_s;
  line.options.port = static_cast<quint16>(*port);
  return {};
}

QString readAddress(CommandLine& line, const QString& value) {
  return line.options.address.setAddress(value) ? QString() : u"needs an IP address"_s;
}

QString readAccount(CommandLine& line, const QString& value) {
  const QStringList words = value.split(u':');
  QString wanted = u"needs USER:PASSWORD[:BALANCE[:nosenderid]]"_s;
  constexpr qsizetype most = 4;
  if (words.size() < 2 || words.size() > most || words[0].isEmpty() || words[1].isEmpty()) return wanted;
  AccountOptions account{words[0], words[1], AccountOptions{}.balance, true, {}};
  bool isNumber = true;
  if (words.size() > 2) account.balance = words[2].toDouble(&isNumber);
  if (!isNumber || !std::isfinite(account.balance)) return wanted;
  if (words.size() == most && words[3] != QLatin1String("nosenderid")) return wanted;
  account.maySetSenderId = words.size() < most;
  line.options.accounts.push_back(account);
  return {};
}

QString readFault(CommandLine& line, const QString& value) {
  const ParsedFault parsed = parseFault(value);
  if (parsed.problem.isEmpty()) line.faults.push_back(parsed.fault);
  return parsed.problem;
}

QString readUploadRate(CommandLine& line, const QString& value) {
  constexpr int most = 1'000'000'000;
  const std::optional<int> rate = readNumber(value, 0, most);
  if (!rate) return u"needs a number of bytes"_s;
  line.options.uploadRate = *rate;
  return {};
}

QString readProtocolVersion(CommandLine& line, const QString& value) {
  bool isNumber = false;
  line.options.protocolVersion = value.toInt(&isNumber);
  return isNumber ? QString() : u"needs a number"_s;
}

constexpr std::array optionRules = {
    OptionRule{"--port", readPort},
    OptionRule{"--listen", readAddress},
    OptionRule{"--account", readAccount},
    OptionRule{"--fault", readFault},
    OptionRule{"--latency",
               [](CommandLine& line, const QString& value) { return readInto(line.options.latency, value); }},
    OptionRule{"--upload-rate", readUploadRate},
    OptionRule{"--session-lifetime",
               [](CommandLine& line, const QString& value) {
                 return readInto(line.options.sessionLifetime, value);
               }},
    OptionRule{
        "--delivery-step",
        [](CommandLine& line, const QString& value) { return readInto(line.options.deliveryStep, value); }},
    OptionRule{"--news",
               [](CommandLine& line, const QString& value) {
                 line.options.news = value;
                 return QString();
               }},
    OptionRule{"--client-version",
               [](CommandLine& line, const QString& value) {
                 line.options.clientVersion = value;
                 return value.isEmpty() ? u"needs a version"_s : QString();
               }},
    OptionRule{"--protocol-version", readProtocolVersion},
};

// Reads the option at `index` and moves it past the option's value.
QString readOption(CommandLine& line, const QStringList& arguments, qsizetype& index) {
  const QString& argument = arguments[index];
  const qsizetype equals = argument.indexOf(u'=');
  const QString name = equals < 0 ? argument : argument.left(equals);
  const auto* rule =
      std::find_if(optionRules.begin(), optionRules.end(),
                   [&name](const OptionRule& candidate) { return name == QLatin1String(candidate.name); });
  if (rule == optionRules.end()) return u"unknown option \"%1\""_s.arg(argument);
  if (equals < 0 && index + 1 >= arguments.size()) return u"%1 needs a value"_s.arg(name);
  const QString value = equals < 0 ? arguments[++index] : argument.mid(equals + 1);
  const QString problem = rule->read(line, value);
  return problem.isEmpty() ? QString() : u"%1 %2: %3"_s.arg(name, value, problem);
}

}  // namespace

CommandLine readCommandLine(const QStringList& arguments) {
  CommandLine line;
  line.options.port = defaultPort;
  const std::vector<AccountOptions> defaultAccounts = std::exchange(line.options.accounts, {});
  for (qsizetype i = 0; i < arguments.size() && line.problem.isEmpty(); ++i) {
    if (arguments[i] == QLatin1String("--help") || arguments[i] == QLatin1String("-h"))
      line.help = true;
    else if (arguments[i] == QLatin1String("--version"))
      line.version = true;
    else
      line.problem = readOption(line, arguments, i);
  }
  if (line.options.accounts.empty()) line.options.accounts = defaultAccounts;
  return line;
}

}  // namespace parlexo::simulator
