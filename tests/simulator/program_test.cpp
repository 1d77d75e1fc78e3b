#include <QCoreApplication>
#include <QProcess>
#include <gmock/gmock.h>

#include "simulator/command_line.h"
#include "simulator/message_text.h"
#include "tests/simulator/raw_client.h"

namespace parlexo::simulator {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

QString program() {
  return QCoreApplication::applicationDirPath() + QStringLiteral("/parlexo-gateway");
}

TEST(CommandLine, readsEveryOption) {
  const CommandLine line = readCommandLine(
      QStringLiteral("--port=0 --account ann:secret1:2.5:nosenderid --account bob:x --latency 5 "
                     "--session-lifetime 6 --delivery-step 7 --news Hi --client-version 3 "
                     "--protocol-version 4 --listen ::1 --fault sendSms:code=12:next")
          .split(u' '));
  ASSERT_EQ(line.options.accounts.size(), 2U);
  EXPECT_EQ(line.options.accounts[0].balance, 2.5);
  EXPECT_FALSE(line.options.accounts[0].maySetSenderId);
  EXPECT_EQ(line.options.latency.count(), 5);
  EXPECT_EQ(line.options.sessionLifetime.count(), 6);
  EXPECT_EQ(line.options.deliveryStep.count(), 7);
  EXPECT_EQ(line.options.protocolVersion, 4);
  ASSERT_EQ(line.faults.size(), 1U);
  EXPECT_TRUE(line.faults[0].once);
}

TEST(GatewayProgram, servesUntilItIsAskedToEnd) {
  QProcess process;
  process.start(program(), {QStringLiteral("--port"), QStringLiteral("0")});
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

TEST(GatewayProgram, badOptionEndsItWithAMessage) {
  QProcess process;
  process.start(program(), {QStringLiteral("--prot")});
  ASSERT_TRUE(process.waitForFinished(10000));
  EXPECT_EQ(process.exitCode(), 2);
  EXPECT_THAT(process.readAllStandardError().toStdString(), StartsWith("parlexo-gateway: unknown option"));
}

TEST(MessageText, countsUnitsAndParts) {
  struct Case {
    QByteArray raw;
    int units;
    int parts;
    bool unicode;
  };
  const Case cases[] = {
      {QByteArray(160, 'x'), 160, 1, false},
      {QByteArray(161, 'x'), 161, 2, false},
      {QByteArray(80, '\xA4') + "x", 161, 2, false},
      {"%%UNICODE%%" + QByteArray("20ac").repeated(70), 70, 1, true},
      {"%%UNICODE%%" + QByteArray("20AC").repeated(135), 135, 3, true},
      {"%%UNICODE%%123", 14, 1, false},
  };
  for (const Case& each : cases) {
    const MessageText text = readMessageText(each.raw);
    EXPECT_EQ(text.units, each.units) << each.raw.left(20).toStdString();
    EXPECT_EQ(text.parts, each.parts) << each.raw.left(20).toStdString();
    EXPECT_EQ(text.unicode, each.unicode) << each.raw.left(20).toStdString();
  }
}

TEST(MessageText, logLineHoldsNoControlCharacter) {
  EXPECT_EQ(forLog(QStringLiteral("a\r\nb\nc\x1B[31m\r")), QStringLiteral("a⏎b⏎c\\x1b[31m\\x0d"));
}

}  // namespace

}  // namespace parlexo::simulator
