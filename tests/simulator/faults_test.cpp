// SPDX-License-Identifier: GPL-3.0-or-later

#include "simulator/simulator.h"
#include "tests/simulator/raw_client.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

using namespace simulator;
struct GatewayFaults : testing::Test {
  GatewayFaults() {
    EXPECT_TRUE(simulator_.start());
    session_ = client().logIn();
  }

  void set(const char* text) {
    const auto parsed = parseFault(QString::fromLatin1(text));
    ASSERT_TRUE(std::holds_alternative<Fault>(parsed)) << text;
    EXPECT_TRUE(simulator_.setFault(std::get<Fault>(parsed)));
  }

  QByteArray sendSms() {
    return client().call("sendSms", text("sSession", session_) + text("sMessage", "Hello") +
                                        flag("bFlash", true) + text("sListPhoneNumbers", "+61491570156"));
  }

  std::size_t accepted() const { return simulator_.messages().size(); }
  RawClient client() const { return RawClient(simulator_.port()); }

  Simulator simulator_;
  QByteArray session_;
};

TEST_F(GatewayFaults, faultAppliesToOneCallOrUntilCleared) {
  set("sendSms:code=12:next");
  EXPECT_EQ(elementText(sendSms(), "nErrorCode"), "12");
  EXPECT_EQ(elementText(sendSms(), "nErrorCode"), "0");
  set("sendSms:soapfault=Out of paper");
  for (int i = 0; i < 2; ++i) EXPECT_EQ(elementText(sendSms(), "faultstring"), "Out of paper");
  EXPECT_EQ(elementText(client().call("getVersion", {}), "nVersion"), "103");
  simulator_.clearFaults();
  EXPECT_EQ(elementText(sendSms(), "nErrorCode"), "0");
}

TEST_F(GatewayFaults, replyTextMayBeAnyUnicode) {
  set("any:text=\xE9\xA0");
  // Characters of the code page are sent as the code point of their byte, all others unchanged.
  EXPECT_EQ(elementText(client().call("getNews", {}), "sNews"), "\xC3\xA9\xC2\xA0");
  simulator_.clearFaults();
  simulator_.setNews(u"\u20AC \u0100 \U0001F600"_s);
  EXPECT_EQ(elementText(client().call("getNews", {}), "sNews"), "\xC2\x80 \xC4\x80 \xF0\x9F\x98\x80");
}

TEST_F(GatewayFaults, cutReplyHasHalfItsBody) {
  set("sendSms:cut:next");
  const QByteArray reply = sendSms();
  const qsizetype body = reply.size() - reply.indexOf("\r\n\r\n") - 4;
  const qsizetype announced = reply.mid(reply.indexOf("Content-Length: ") + 16).split('\r').front().toInt();
  EXPECT_EQ(body, announced / 2);
  EXPECT_EQ(accepted(), 1U);
}

TEST_F(GatewayFaults, stoppedGatewayRefusesAndRestartsWithItsAccounts) {
  simulator_.setBalance(u"demo"_s, 7.0);
  simulator_.stop();
  EXPECT_EQ(client().logIn(), "(none)");
  ASSERT_TRUE(simulator_.start());
  EXPECT_NE(client().logIn(), "(none)");
  EXPECT_EQ(simulator_.balance(u"demo"_s), 7.0);

  Options taken;
  taken.port = simulator_.port();
  Simulator second(taken);
  EXPECT_FALSE(second.start());
  EXPECT_FALSE(second.errorText().isEmpty());
}

TEST(FaultText, problemIsReported) {
  const std::pair<const char*, const char*> cases[] = {
      {"sendSms", "expected OPERATION:KIND"},
      {"sendSms:explode", "unknown kind of fault \"explode\""},
      {"sendSms:code=x", "code needs a number: code=N"},
      {"getVersion:code=1", "the reply of getVersion has no code"},
      {"sessionEnd:text=x", "the reply of sessionEnd has no text"},
      {"locator:clientversion=:next", "clientversion needs a text: clientversion=TEXT"},
  };
  for (const auto& [text, problem] : cases)
    EXPECT_EQ(std::get<QString>(parseFault(QString::fromLatin1(text))).toStdString(), problem) << text;
  EXPECT_TRUE(std::get<Fault>(parseFault(u"any:late=3000:next"_s)).once);
}

}  // namespace
}  // namespace parlexo::test
