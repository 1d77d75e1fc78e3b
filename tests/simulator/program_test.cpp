// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <QProcess>

#include "simulator/command_line.h"
#include "simulator/message_text.h"
#include "tests/simulator/raw_client.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

using namespace simulator;
QString program() {
  return QCoreApplication::applicationDirPath() + u"/parlexo-simulator"_s;
}

TEST(CommandLine, problemIsReported) {
  const Cases<const char*, const char*> cases = {
      {"--colour red", "Unknown option 'colour'."},
      {"port", "unexpected argument \"port\""},
      {"--port", "Missing value after '--port'."},
      {"--port 70000", "--port 70000: needs a port from 0 to 65535"},
      {"--listen nowhere", "--listen nowhere: needs an IP address"},
      {"--account ann:b:nan", "--account ann:b:nan: needs USER:PASSWORD[:BALANCE[:nosenderid]]"},
      {"--latency -1", "--latency -1: needs a time in milliseconds"},
      {"--fault x", "--fault x: expected OPERATION:KIND"},
  };
  for (const auto& [arguments, problem] : cases)
    EXPECT_EQ(
        parseCommandLine(QStringLiteral("parlexo-simulator %1").arg(QLatin1String(arguments)).split(u' '))
            .problem.toStdString(),
        problem);
}

TEST(CommandLine, readsValuesAndHelp) {
  const CommandLine line =
      parseCommandLine({u"parlexo-simulator"_s, u"--account=ann:secret:5"_s, u"--latency"_s, u"20"_s,
                        u"--account"_s, u"bob:secret"_s, u"--fault"_s, u"sendSms:code=12:next"_s});
  EXPECT_EQ(line.problem.toStdString(), "");
  ASSERT_EQ(line.options.accounts.size(), 2);
  EXPECT_EQ(line.options.accounts[0].balance, 5.0);
  EXPECT_EQ(line.options.accounts[1].user, u"bob"_s);
  EXPECT_EQ(line.options.latency.count(), 20);
  ASSERT_EQ(line.faults.size(), 1);
  EXPECT_EQ(toString(line.faults[0]), u"code=12"_s);
  const std::string help = parseCommandLine({u"parlexo-simulator"_s, u"-h"_s}).help.toStdString();
  for (const char* part : {"--upload-rate <N>", "clientversion=TEXT", "\n   7  "})
    EXPECT_THAT(help, HasSubstr(part));
}

TEST(GatewayProgram, servesUntilTerminated) {
  QProcess process;
  process.start(program(), {u"--port"_s, u"0"_s});
  ASSERT_TRUE(process.waitForReadyRead(10000));
  const QByteArray announcement = process.readLine();
  const qsizetype colon = announcement.lastIndexOf(':');
  const quint16 port = announcement.mid(colon + 1, announcement.indexOf(' ', colon) - colon - 1).toUShort();
  ASSERT_NE(port, 0) << announcement.toStdString();
  EXPECT_NE(RawClient(port).logIn(), "(none)");
  process.terminate();
  ASSERT_TRUE(process.waitForFinished(10000));
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(process.exitCode(), 0);
  EXPECT_THAT(process.readAllStandardOutput().toStdString(), HasSubstr("sessionStart: code 0, success"));
}

TEST(GatewayProgram, badOptionIsReported) {
  QProcess process;
  process.start(program(), {u"--prot"_s});
  ASSERT_TRUE(process.waitForFinished(10000));
  EXPECT_EQ(process.exitCode(), 2);
  EXPECT_THAT(process.readAllStandardError().toStdString(), StartsWith("parlexo-simulator: Unknown option"));
}

TEST(MessageText, countsUnitsAndParts) {
  const Cases<QByteArray, int, int, bool> cases = {
      {QByteArray(160, 'x'), 160, 1, false},
      {QByteArray(161, 'x'), 161, 2, false},
      {QByteArray(80, '\xA4') + "x", 161, 2, false},
      {"%%UNICODE%%" + QByteArray("20ac").repeated(70), 70, 1, true},
      {"%%UNICODE%%" + QByteArray("20AC").repeated(135), 135, 3, true},
      {"%%UNICODE%%123", 14, 1, false},
  };
  for (const auto& [raw, units, parts, unicode] : cases) {
    const MessageText text = parseMessageText(raw);
    EXPECT_EQ(text.units, units) << raw.left(20).toStdString();
    EXPECT_EQ(text.parts, parts) << raw.left(20).toStdString();
    EXPECT_EQ(text.unicode, unicode) << raw.left(20).toStdString();
  }
}

TEST(MessageText, logLineHasNoControlCharacters) {
  EXPECT_EQ(escapeForLog(u"a\r\nb\nc\x1B[31m\r"_s), u"a⏎b⏎c\\x1b[31m\\x0d"_s);
}

}  // namespace
}  // namespace parlexo::test
