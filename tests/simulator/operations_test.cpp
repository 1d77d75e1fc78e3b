// SPDX-License-Identifier: GPL-3.0-or-later
#include <mutex>

#include <QCryptographicHash>

#include "simulator/simulator.h"
#include "tests/simulator/raw_client.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

using namespace simulator;
using std::chrono::seconds;

// Stands still until it is moved on; used from several threads.
class ManualClock {
 public:
  explicit ManualClock(const QDateTime& now) : now_(now) {}

  QDateTime now() const {
    const std::lock_guard lock(mutex_);
    return now_;
  }
  void advance(std::chrono::milliseconds time) {
    const std::lock_guard lock(mutex_);
    now_ = now_.addMSecs(time.count());
  }

 private:
  mutable std::mutex mutex_;
  QDateTime now_;
};

const QDateTime start(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);

struct GatewayOperations : testing::Test {
  GatewayOperations() : simulator_(options()) {
    EXPECT_TRUE(simulator_.start());
    session_ = client().logIn();
  }

  Options options() {
    Options options;
    options.now = [this] { return clock_.now(); };
    options.deliveryStep = seconds(10);
    options.sessionLifetime = std::chrono::minutes(30);
    options.log = [this](const QString& line) {
      const std::lock_guard lock(logMutex_);
      log_ += line + u'\n';
    };
    return options;
  }

  QString log() {
    const std::lock_guard lock(logMutex_);
    return log_;
  }

  RawClient client() const { return RawClient(simulator_.port()); }

  QByteArray sendSms(const QByteArray& message, const QByteArray& numbers) {
    return call("sendSms",
                text("sMessage", message) + flag("bFlash", false) + text("sListPhoneNumbers", numbers));
  }

  QByteArray queryStatus(const QByteArray& receipt) { return call("getStatus", text("sReciept", receipt)); }

  // Calls with the session of demo.
  QByteArray call(const QByteArray& operation, const QByteArray& fields = {}) {
    return client().call(operation, text("sSession", session_) + fields);
  }
  QByteArray errorCode(const QByteArray& operation, const QByteArray& fields = {}) {
    return elementText(call(operation, fields), "nErrorCode");
  }

  ManualClock clock_{start};
  std::mutex logMutex_;
  QString log_;
  Simulator simulator_;
  QByteArray session_;
};

TEST_F(GatewayOperations, everyNumberHasAReceiptAndNumbersEndingIn99Fail) {
  const QByteArray reply = sendSms("Hello", "+61491570156,+61491570199,60312345678,+861012345678");
  EXPECT_EQ(elementText(reply, "nErrorCode"), "0");
  const QList<QByteArray> pairs = elementText(reply, "sListReciepts").split(',');
  ASSERT_EQ(pairs.size(), 4);
  EXPECT_THAT(pairs[0].toStdString(), StartsWith("+61491570156:"));
  EXPECT_EQ(pairs[1], "+61491570199:FAIL");
  EXPECT_EQ(pairs[2], "60312345678:FAIL");
  EXPECT_THAT(pairs[3].toStdString(), StartsWith("+861012345678:"));
  EXPECT_NE(pairs[0].split(':')[1], pairs[3].split(':')[1]);
  EXPECT_EQ(simulator_.balance(u"demo"_s), 99.90) << "failed numbers cost nothing";
}

TEST_F(GatewayOperations, deliveryAdvancesWithTime) {
  const QByteArray receipt = elementText(sendSms("Hello", "+61491570156"), "sListReciepts").split(':').last();
  EXPECT_EQ(elementText(queryStatus(receipt), "sStatus"), "Queued at gateway");
  clock_.advance(seconds(10));
  EXPECT_EQ(elementText(queryStatus(receipt), "sStatus"), "Sent to network");
  clock_.advance(seconds(10));
  EXPECT_EQ(elementText(queryStatus(receipt), "sStatus"), "Delivered to handset");
  EXPECT_EQ(elementText(queryStatus("FAIL"), "sStatus"), "Not accepted by gateway");
  EXPECT_EQ(elementText(queryStatus("nonsense"), "nErrorCode"), "10");
  simulator_.rememberReceipt(u"demo"_s, u"OLD-1"_s);
  EXPECT_EQ(elementText(queryStatus("OLD-1"), "sStatus"), "Delivered to handset");
}

TEST_F(GatewayOperations, scheduledMessageWaitsForItsTime) {
  const auto schedule = [this](const QByteArray& time) {
    return errorCode("scheduleMessageEnable", text("sDateTimeGmt", time));
  };
  EXPECT_EQ(schedule("2026/03/01 13:00:00"), "0");
  const QByteArray later = elementText(sendSms("Later", "+61491570156"), "sListReciepts").split(':').last();
  EXPECT_EQ(errorCode("scheduleMessageDisable"), "0");
  const QByteArray now = elementText(sendSms("Now", "+61491570156"), "sListReciepts").split(':').last();
  clock_.advance(std::chrono::minutes(10));
  EXPECT_EQ(elementText(queryStatus(later), "sStatus"), "Queued at gateway");
  EXPECT_EQ(elementText(queryStatus(now), "sStatus"), "Delivered to handset");
  clock_.advance(std::chrono::minutes(25));
  EXPECT_EQ(elementText(queryStatus(later), "sStatus"), "Queued at gateway");
  clock_.advance(std::chrono::minutes(25));
  clock_.advance(seconds(10));
  EXPECT_EQ(elementText(queryStatus(later), "sStatus"), "Sent to network");

  for (const char* bad : {"2027/03/02 00:00:00", "2026/3/1 13:00:00", "2026/02/30 13:00:00", "",
                          "2026/03/01 25:00:00", "2026/03/01T13:00:00"})
    EXPECT_EQ(schedule(bad), "9") << bad;
}

TEST_F(GatewayOperations, sessionsExpire) {
  const auto balanceCode = [this] { return errorCode("getAccountBalance"); };
  clock_.advance(std::chrono::minutes(29));
  EXPECT_EQ(balanceCode(), "0");
  clock_.advance(std::chrono::minutes(29));
  EXPECT_EQ(balanceCode(), "0") << "use begins the lifetime anew";
  clock_.advance(std::chrono::minutes(30));
  EXPECT_EQ(balanceCode(), "7");

  session_ = client().logIn();
  simulator_.expireSessions();
  EXPECT_EQ(elementText(sendSms("Hello", "+61491570156"), "nErrorCode"), "7");
  EXPECT_TRUE(simulator_.messages().empty());

  session_ = client().logIn();
  EXPECT_EQ(simulator_.openSessions(), 1);
  EXPECT_EQ(errorCode("sessionEnd"), "0");
  EXPECT_EQ(balanceCode(), "7");
}

TEST_F(GatewayOperations, rejectedMessagesCostNothing) {
  const Cases<QByteArray, QByteArray, const char*> cases = {
      {"", "+61491570156", "3"},
      {"Hello", "", "6"},
      {QByteArray(761, 'x'), "+61491570156", "15"},
      {"%%UNICODE%%" + QByteArray("0041").repeated(336), "+61491570156", "15"},
      {QByteArray(760, 'x'), "+61491570156", "0"},
  };
  for (const auto& [message, numbers, code] : cases)
    EXPECT_EQ(elementText(sendSms(message, numbers), "nErrorCode"), code);
  EXPECT_EQ(simulator_.balance(u"demo"_s), 99.75) << "five parts at 0.05";

  simulator_.setBalance(u"demo"_s, 0.09);
  EXPECT_EQ(elementText(sendSms("Hello", "+61491570156,+60312345678"), "nErrorCode"), "5");
  EXPECT_EQ(simulator_.balance(u"demo"_s), 0.09);
  EXPECT_EQ(simulator_.messages().size(), 1U);
}

TEST_F(GatewayOperations, messagesAreStoredAndLoggedAsText) {
  EXPECT_EQ(errorCode("setSmsSenderId", text("sSenderId", "Parlexo")), "0");
  (void)sendSms("%%UNICODE%%0048006920AC", "+61491570156");
  (void)sendSms("two\n\x1B]", "+61491570156");
  const auto messages = simulator_.messages();
  ASSERT_EQ(messages.size(), 2U);
  EXPECT_EQ(messages[0].text, u"Hi€"_s);
  EXPECT_TRUE(messages[0].unicode);
  EXPECT_EQ(messages[0].rawText, "%%UNICODE%%0048006920AC");
  EXPECT_EQ(messages[0].senderId, u"Parlexo"_s);
  EXPECT_TRUE(messages[1].senderId.isEmpty()) << "a sender ID holds for one message";
  EXPECT_THAT(log().toStdString(), HasSubstr("SMS from demo (Unicode, sender ID Parlexo, cost 0.05)"));
  EXPECT_THAT(log().toStdString(), HasSubstr("text: Hi€"));
}

TEST_F(GatewayOperations, fileArrivesWithItsNameSizeAndHash) {
  const QByteArray content("\x00\x01\xFFPNG", 6);
  const auto sendMms = [&](const QByteArray& bytes) {
    return call("sendMms", text("sDescription", "A picture") + text("sFileName", "cat.png") +
                               "<oData xsi:type=\"xsd:base64Binary\">" + bytes.toBase64() + "</oData>" +
                               text("sListPhoneNumbers", "+61491570156"));
  };
  EXPECT_EQ(elementText(sendMms(content), "nErrorCode"), "0");
  EXPECT_EQ(elementText(sendMms({}), "nErrorCode"), "8");
  EXPECT_EQ(elementText(sendMms(QByteArray(50 * 1024, 'x')), "nErrorCode"), "0");
  EXPECT_EQ(elementText(sendMms(QByteArray(50 * 1024 + 1, 'x')), "nErrorCode"), "8");

  const AcceptedMessage message = simulator_.messages().front();
  EXPECT_EQ(message.text, u"A picture"_s);
  EXPECT_EQ(message.fileSha256, QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
}

TEST_F(GatewayOperations, passwordAndSenderIdAreValidated) {
  const auto change = [this](const QByteArray& from, const QByteArray& to) {
    return errorCode("setAccountPassword", text("sOldPassword", from) + text("sNewPassword", to));
  };
  EXPECT_EQ(change("wrong", "better12"), "4");
  EXPECT_EQ(change("demo1234", "letters"), "11");
  EXPECT_EQ(change("demo1234", "better12"), "0");
  EXPECT_TRUE(simulator_.hasPassword(u"demo"_s, u"better12"_s));

  const auto setSender = [this](const QByteArray& senderId) {
    return errorCode("setSmsSenderId", text("sSenderId", senderId));
  };
  for (const char* good : {"Parlexo", "+61491570156", "12345"}) EXPECT_EQ(setSender(good), "0") << good;
  for (const char* bad : {"", "   ", "TwelveLetter", "Tab\there", "+12"})
    EXPECT_EQ(setSender(bad), "12") << bad;
}

TEST_F(GatewayOperations, partnerManagesSubUsers) {
  const QByteArray user = text("sUser", "ann@demo");
  EXPECT_EQ(errorCode("partnerAddUser", user + text("sEmail", "ann@parlexo.example")), "0");
  EXPECT_EQ(errorCode("partnerAddUser", user + text("sEmail", "")), "13") << "taken";
  EXPECT_EQ(errorCode("partnerAddEvent", user + text("sEventType", "credit") + text("sPackageType", "SMS") +
                                             "<dAmount xsi:type=\"xsd:double\">12.5</dAmount>" +
                                             text("sDescription", "first")),
            "0");
  EXPECT_EQ(simulator_.balance(u"ann@demo"_s), 12.5);
  EXPECT_EQ(errorCode("sessionStart", text("sUser", "ann@demo") + text("sPassword", "")), "4");

  const QByteArray opened =
      client().call("partnerStartSessionForSubUser",
                    text("sUser", "demo") + text("sPassword", "demo1234") + text("sSubUser", "ann@demo"));
  const QByteArray balance =
      client().call("getAccountBalance", text("sSession", elementText(opened, "sSession")));
  EXPECT_EQ(elementText(balance, "dValue").toDouble(), 12.5);

  const QByteArray cost =
      call("partnerGetCostByPhoneNumber", text("sPhoneNumber", "+61491570156") + text("sPackageType", "") +
                                              text("sCurrency", "AUD") + text("sServiceType", "SMS"));
  EXPECT_EQ(elementText(cost, "sCountry"), "Australia");
  EXPECT_EQ(elementText(cost, "dCostWholesaleFlat").toDouble(), 0.05);
}

TEST_F(GatewayOperations, everyOperationGetsAReply) {
  ASSERT_EQ(operationNames().size(), 28);
  for (const QString& name : operationNames()) {
    const QByteArray reply = client().call(name.toLatin1(), {});
    EXPECT_EQ(httpStatus(reply), 200) << name.toStdString();
    EXPECT_TRUE(reply.contains("<ns3:" + name.toLatin1() + "Response")) << name.toStdString();
  }
  EXPECT_EQ(elementText(client().call("getVersion", {}), "nVersion"), "103");
  EXPECT_THAT(elementText(client().call("getNews", {}), "sNews").toStdString(), HasSubstr("simulator"));
}

TEST_F(GatewayOperations, malformedCallGetsASoapFault) {
  QByteArray wrongAction = postRequest("getVersion", {});
  wrongAction.replace("PortType#getVersion", "PortType#getNews");
  QByteArray notXml = postRequest("getVersion", {});
  notXml.replace("<?xml", "?<xml");
  for (const QByteArray& request : {wrongAction, notXml, postRequest("getNothing", {}),
                                    postRequest("sendSms", "<bFlash>maybe</bFlash>")}) {
    const QByteArray reply = client().exchange(request);
    EXPECT_EQ(httpStatus(reply), 500);
    EXPECT_NE(elementText(reply, "faultstring"), "(none)") << reply.toStdString();
  }
}

}  // namespace
}  // namespace parlexo::test
