// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>

#include <QByteArray>
#include <QCoreApplication>

#include "base/product.h"
#include "base/program.h"
#include "simulator/command_line.h"
#include "simulator/simulator.h"
#include "simulator/stop_signals.h"

using namespace Qt::StringLiterals;

namespace {

using parlexo::simulator::CommandLine;

constexpr int startFailed = 1;
constexpr int wrongUsage = 2;

void print(std::FILE* stream, const QString& line) {
  const QByteArray bytes = line.toUtf8() + '\n';
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
  std::fflush(stream);
}

int serve(const CommandLine& line) {
  parlexo::simulator::Simulator simulator(line.options);
  for (const auto& fault : line.faults) simulator.setFault(fault);
  if (!simulator.start()) {
    print(stderr, u"parlexo-simulator: cannot listen on port %1: %2"_s.arg(line.options.port)
                      .arg(simulator.errorText()));
    return startFailed;
  }
  print(stdout, u"Gateway simulator at %1 (press Ctrl+C to stop)"_s.arg(simulator.site()));
  parlexo::simulator::waitForStopSignal();
  simulator.stop();
  print(stdout, u"Ended after %1 messages"_s.arg(simulator.messages().size()));
  return 0;
}

int runProgram(int argc, char** argv) {
  parlexo::simulator::blockStopSignals();
  const QCoreApplication application(argc, argv);
  CommandLine line = parlexo::simulator::parseCommandLine(QCoreApplication::arguments());
  if (!line.problem.isEmpty()) {
    print(stderr, u"parlexo-simulator: %1\nTry \"parlexo-simulator --help\"."_s.arg(line.problem));
    return wrongUsage;
  }
  if (!line.help.isEmpty()) {
    print(stdout, line.help);
    return 0;
  }
  if (line.version) {
    print(stdout, u"parlexo-simulator %1"_s.arg(QString::fromLatin1(parlexo::clientVersion)));
    return 0;
  }
  line.options.log = [](const QString& text) { print(stdout, text); };
  return serve(line);
}

}  // namespace

int main(int argc, char** argv) {
  return parlexo::endProcess(runProgram(argc, argv));
}
