// SPDX-License-Identifier: GPL-3.0-or-later

#include "messaging/core/sms_send_flow.h"
#include "tests/messaging/gateway_rig.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

struct SmsSending : testing::Test, GatewayRig {
  static SmsDraft draftTo(const QStringList& numbers) {
    SmsDraft draft;
    draft.text = u"Hello"_s;
    draft.displayList = u"somebody"_s;
    draft.numbersList = numbers.join(QChar(u','));
    return draft;
  }
  static SmsDraft scheduled(SmsDraft draft) {
    const QDateTime tomorrow = QDateTime::currentDateTimeUtc().addDays(1);
    draft.schedule = {u"tomorrow"_s, tomorrow.toString(u"yyyy/MM/dd HH:mm:ss"_s)};
    return draft;
  }
  SendOutcome send(const SmsDraft& draft) { return SmsSendFlow(services()).send(draft); }

  const SmsDraft draft_ = draftTo({"+61491570156", "+60312345678"});
};

TEST_F(SmsSending, acceptedMessageIsLoggedSavedAndConfirmed) {
  EXPECT_EQ(send(draft_), SendOutcome::Delivered);
  EXPECT_THAT(journal,
              ElementsAre("(box)", "(no box)", "64 SMS message successfully delivered to the server."));
  EXPECT_EQ(operations(), QStringList({"scheduleMessageDisable", "sendSms"}));
  ASSERT_THAT(simulator.messages(), SizeIs(1));
  const simulator::AcceptedMessage message = simulator.messages().front();
  EXPECT_EQ(message.text, "Hello");
  EXPECT_FALSE(message.flash);
  EXPECT_EQ(message.numbers, QStringList({"+61491570156", "+60312345678"}));
  ASSERT_THAT(log.entries(), SizeIs(2));
  const StatusEntry& entry = log.entries().at(message.receipts[0]);
  EXPECT_EQ(entry.phone, "+61491570156");
  EXPECT_EQ(entry.status, "Delivered to Gateway");
  EXPECT_EQ(entry.type, "SMS");
  const QDateTime logged = QDateTime::fromString(entry.date, u"dd/MM/yyyy HH:mm:ss"_s);
  EXPECT_LT(std::abs(logged.secsTo(QDateTime::currentDateTime())), 60);
  EXPECT_FALSE(log.isModified());
  StatusLog readBack;
  file.load(readBack, notifier);
  EXPECT_EQ(readBack.entries(), log.entries());
}

TEST_F(SmsSending, unicodeFlashScheduleAndSenderIdReachTheGateway) {
  SmsDraft draft = scheduled(draftTo({"+61491570156"}));
  draft.text = QString::fromUtf8("\u4F60 \U0001F600\n\u20AC");
  draft.charset = SmsCharset::Unicode;
  draft.flash = true;
  state.senderId = u"+61491570999"_s;
  EXPECT_EQ(send(draft), SendOutcome::Delivered);
  EXPECT_EQ(operations(),
            QStringList({"scheduleMessageDisable", "scheduleMessageEnable", "setSmsSenderId", "sendSms"}));
  const simulator::AcceptedMessage message = simulator.messages().at(0);
  EXPECT_EQ(message.text, draft.text);
  EXPECT_TRUE(message.unicode);
  EXPECT_TRUE(message.flash);
  EXPECT_EQ(message.senderId, state.senderId);
  ASSERT_TRUE(message.schedule.has_value());
  EXPECT_EQ(message.schedule->toString(u"yyyy/MM/dd HH:mm:ss"_s), draft.schedule.value);
}

TEST_F(SmsSending, failedNumbersAreListedAndLogged) {
  EXPECT_EQ(send(draftTo({"+61491570156", "+61491570199", "+60312345699"})), SendOutcome::PartlyFailed);
  EXPECT_THAT(journal, ElementsAre("(box)", "(no box)",
                                   "64 Warning - The server was unable to send your message to the "
                                   "following numbers\n+61491570199\n+60312345699\n"));
  ASSERT_THAT(log.entries(), SizeIs(2));  // both failed numbers have the receipt FAIL
  EXPECT_EQ(log.entries().at(u"FAIL"_s).phone, "+60312345699");
}

TEST_F(SmsSending, missingInputIsReportedBeforeAnyCall) {
  SmsDraft draft;
  state.balanceIsZero = true;
  const auto expectRefusal = [&](const char* line, SendOutcome outcome) {
    EXPECT_EQ(send(draft), outcome);
    EXPECT_THAT(notifier.popLines().join(u'\n').toStdString(), StartsWith(line));
  };
  expectRefusal("16 No SMS message has been provided. Enter a SMS message.", SendOutcome::MessageAtFault);
  draft.text = u"x"_s;
  expectRefusal("16 The contacts list is blank. Select contacts to send message to.",
                SendOutcome::RecipientsAtFault);
  draft.displayList = u"Ann [+1]"_s;
  expectRefusal("64 Your account balance is zero.\r\nPlease go to ", SendOutcome::NotSent);
  draft.charset = SmsCharset::Unicode;
  draft.text = QString(336, QChar(u'x'));
  expectRefusal("16 Unicode text is too long for message, we can not send this!",
                SendOutcome::MessageAtFault);
  EXPECT_EQ(journal.size(), 4) << "one message each";
  EXPECT_THAT(operations(), IsEmpty());
}

TEST_F(SmsSending, expiredSessionAsksForOneLoginWithoutRetry) {
  simulator.expireSessions();
  EXPECT_EQ(send(draft_), SendOutcome::NotSent);
  EXPECT_THAT(journal,
              ElementsAre("(box)", "(no box)", "16 Your Session has expired. Please log back in", "(login)"));
  EXPECT_EQ(operations(), QStringList({"scheduleMessageDisable", "sendSms"}));
  EXPECT_THAT(simulator.messages(), IsEmpty());
  EXPECT_THAT(log.entries(), IsEmpty());
}

TEST_F(SmsSending, failureIsReportedOnceAndNothingIsSentTwice) {
  const Cases<FaultKind, int, std::size_t, SendOutcome, const char*> failures = {
      {FaultKind::Close, 0, 1, SendOutcome::OutcomeUnknown, unreachable},
      {FaultKind::Cut, 0, 1, SendOutcome::OutcomeUnknown, unreachable},
      {FaultKind::Late, 2500, 1, SendOutcome::OutcomeUnknown, unreachable},
      {FaultKind::HttpError, 0, 0, SendOutcome::NotSent, unreachable},
      {FaultKind::NotXml, 0, 0, SendOutcome::OutcomeUnknown, unreachable},
      {FaultKind::SoapFault, 0, 0, SendOutcome::NotSent, unreachable},
      {FaultKind::Code, 12, 0, SendOutcome::NotSent,
       "An error occured while sending your message.\r\nError code: 12"},
  };
  for (const auto& [kind, number, accepted, outcome, message] : failures) {
    SCOPED_TRACE(static_cast<int>(kind));
    simulator.clearFaults();
    setFault(kind, u"sendSms"_s, number);
    const auto sendsBefore = operations().count(u"sendSms"_s);
    const std::size_t acceptedBefore = simulator.messages().size();
    journal.clear();
    EXPECT_EQ(send(draft_), outcome);
    EXPECT_THAT(journal, ElementsAre("(box)", "(no box)", QString("16 ") + message));
    EXPECT_EQ(operations().count(u"sendSms"_s) - sendsBefore, 1);
    EXPECT_THAT(simulator.messages(), SizeIs(acceptedBefore + accepted));
  }
  EXPECT_THAT(log.entries(), IsEmpty());
  EXPECT_FALSE(QFile::exists(file.path()));
}

TEST_F(SmsSending, refusedConnectionSendsNothing) {
  setFault(FaultKind::Refuse, u"any"_s);
  EXPECT_NE(send(draft_), SendOutcome::Delivered);
  simulator.stop();
  EXPECT_EQ(send(draft_), SendOutcome::NotSent);
  EXPECT_THAT(notifier.popTexts(), ElementsAre(unreachable, unreachable));
  EXPECT_THAT(simulator.messages(), IsEmpty());
}

TEST_F(SmsSending, rejectedScheduleOrSenderIdEndsTheSend) {
  const Cases<const char*, FaultKind, int, const char*> samples = {
      {"scheduleMessageEnable", FaultKind::Code, 9,
       "Error setting schedule date. Perhaps you have scheduled the message too far into the future? Error: "
       "9"},
      {"setSmsSenderId", FaultKind::Code, 12,
       "Error setting your Sender Id. Are you sure you have set a valid Sender Id and your account is "
       "enabled to "
       "set Any Sender ID? Error: 12"},
  };
  state.senderId = u"+61491570999"_s;
  for (const auto& [operation, kind, number, message] : samples) {
    simulator.clearFaults();
    setFault(kind, QString::fromLatin1(operation), number);
    EXPECT_EQ(send(scheduled(draft_)), SendOutcome::NotSent) << operation;
    EXPECT_EQ(notifier.popLines(), QStringList(QString("16 ") + message));
  }
  EXPECT_FALSE(operations().contains(u"sendSms"_s));
}

TEST_F(SmsSending, cancellingAnyCallEndsTheSend) {
  const Cases<int, const char*, const char*, SendOutcome, std::size_t> samples = {
      {1, "scheduleMessageDisable", unreachable, SendOutcome::NotSent, 0},
      {2, "scheduleMessageEnable",
       "Error setting schedule date. Perhaps you have scheduled the message too far into the future? Error: "
       "0",
       SendOutcome::NotSent, 0},
      {3, "setSmsSenderId", unreachable, SendOutcome::NotSent, 0},
      {4, "sendSms", unreachable, SendOutcome::OutcomeUnknown, 1},
  };
  state.senderId = u"+61491570999"_s;
  for (const auto& [number, operation, message, outcome, accepted] : samples) {
    simulator.clearFaults();
    setFault(FaultKind::Late, QString::fromLatin1(operation), 900);
    runner.cancel(number);
    const auto before = operations().size();
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(send(scheduled(draft_)), outcome) << operation;
    EXPECT_LT(clock.elapsed(), 700) << operation;
    EXPECT_EQ(operations().size() - before, number);
    EXPECT_EQ(operations().back(), QString::fromLatin1(operation));
    EXPECT_THAT(notifier.popTexts(), ElementsAre(message));
    EXPECT_THAT(simulator.messages(), SizeIs(accepted)) << operation;
  }
}

TEST_F(SmsSending, replyBeforeTheCancelCounts) {
  runner.cancel(1, {});
  setFault(FaultKind::Late, u"scheduleMessageDisable"_s, 300);
  EXPECT_EQ(send(draft_), SendOutcome::NotSent);
  simulator.clearFaults();
  runner.cancel(2, std::chrono::milliseconds(500));
  EXPECT_EQ(send(draft_), SendOutcome::Delivered);
  EXPECT_THAT(log.entries(), SizeIs(2));
}

TEST_F(SmsSending, failureToCancelAnOldScheduleIsIgnored) {
  setFault(FaultKind::SoapFault, u"scheduleMessageDisable"_s);
  EXPECT_EQ(send(draft_), SendOutcome::Delivered);
  EXPECT_THAT(simulator.messages(), SizeIs(1));
}

TEST_F(SmsSending, tenThousandRecipientsAreSentInOneCall) {
  simulator.setBalance(u"demo"_s, 10'000);
  QStringList numbers;
  for (int i = 0; i < 10'000; ++i) numbers.append(u"+6149%1"_s.arg(100'000'00 + 100 * i));
  EXPECT_EQ(send(draftTo(numbers)), SendOutcome::Delivered);
  EXPECT_THAT(log.entries(), SizeIs(10'000));
  EXPECT_EQ(operations().count(u"sendSms"_s), 1);
}

}  // namespace
}  // namespace parlexo::test
