#include <algorithm>
#include <string>

#include <gmock/gmock.h>

#include "gateway/core/gateway_client.h"
#include "simulator/simulator.h"

namespace parlexo::simulator {

namespace {

/// The program's own client against the gateway, each on its side of a real connection.
class ClientAndGateway : public testing::Test {
 protected:
  ClientAndGateway() {
    EXPECT_TRUE(simulator_.start());
    access_.endpoint = (simulator_.site() + QStringLiteral("/ccx/onlineCommunication")).toStdString();
    access_.timeouts = {.connect = 2, .silence = 2};
    GatewayClient client(access_);
    protocol::sessionStartResponse opened;
    EXPECT_EQ(client.sessionStart("demo", "demo1234", opened), 0);
    session_ = opened.sSession ? opened.sSession : "";
  }

  // Sends and tells the runtime's result, the code and the receipts.
  struct Outcome {
    int result = 0;
    int code = 0;
    std::string receipts;
  };
  Outcome sendSms(const std::string& message = "Hello", const std::string& numbers = "+61491570156") {
    GatewayClient client(access_);
    protocol::sendSmsResponse response;
    response.nErrorCode = 99;
    const int result = client.sendSms(session_, message, true, numbers, response);
    return {result, response.nErrorCode, response.sListReciepts ? response.sListReciepts : ""};
  }

  Simulator simulator_;
  GatewayAccess access_;
  std::string session_;
};

TEST_F(ClientAndGateway, everyByteOfTheCodePageArrives) {
  std::string allBytes = "\t\n";
  for (int byte = 0x20; byte <= 0xFF; ++byte) allBytes += static_cast<char>(byte);
  EXPECT_EQ(sendSms(allBytes).code, 0);
  ASSERT_EQ(simulator_.messages().size(), 1U);
  EXPECT_EQ(simulator_.messages().front().rawText.toStdString(), allBytes);
}

TEST_F(ClientAndGateway, transportFaultsGiveAResultAndLeaveTheResponseCleared) {
  for (const char* fault : {"sendSms:close:next", "sendSms:cut:next", "sendSms:late=3000:next",
                            "sendSms:http500:next", "sendSms:notxml:next", "sendSms:soapfault:next"}) {
    ASSERT_TRUE(simulator_.setFault(parseFault(QString::fromLatin1(fault)).fault));
    const Outcome outcome = sendSms();
    EXPECT_NE(outcome.result, 0) << fault;
    EXPECT_EQ(outcome.code, 0) << fault;
    EXPECT_EQ(outcome.receipts, "") << fault;
  }
  EXPECT_EQ(simulator_.messages().size(), 3U) << "close, cut and late come after the message was taken";
  EXPECT_EQ(sendSms().result, 0);
  simulator_.stop();
  EXPECT_NE(sendSms().result, 0);
}

TEST_F(ClientAndGateway, codesAndFailuresArriveAsAnswers) {
  EXPECT_EQ(sendSms("Hello", "+61491570199").receipts, "+61491570199:FAIL");
  ASSERT_TRUE(simulator_.setFault(parseFault(QStringLiteral("sendSms:code=12:next")).fault));
  EXPECT_EQ(sendSms().code, 12);
  simulator_.expireSessions();
  const Outcome expired = sendSms();
  EXPECT_EQ(expired.result, 0);
  EXPECT_EQ(expired.code, 7);
}

TEST_F(ClientAndGateway, largestFaxAndLongestRecipientListFit) {
  simulator_.setBalance(QStringLiteral("demo"), 1e6);
  GatewayClient client(access_);
  const std::string content(2 * 1024 * 1024, 'x');
  const protocol::BinaryData file{reinterpret_cast<const unsigned char*>(content.data()),
                                  static_cast<std::int32_t>(content.size())};
  protocol::sendFaxResponse response;
  EXPECT_EQ(client.sendFax(session_, "big.tif", file, "+61491570156", response), 0);
  EXPECT_EQ(response.nErrorCode, 0);
  EXPECT_EQ(simulator_.messages().front().fileSize, 2 * 1024 * 1024);

  std::string numbers = "+61491570156";
  for (int i = 1; i < 50'000; ++i) numbers += ",+61491570156";
  const Outcome outcome = sendSms("Hello", numbers);
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(std::count(outcome.receipts.begin(), outcome.receipts.end(), ','), 49'999);
}

}  // namespace

}  // namespace parlexo::simulator
