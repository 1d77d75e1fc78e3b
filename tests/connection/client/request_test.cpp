// SPDX-License-Identifier: GPL-3.0-or-later
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "connection/client/gateway_client.h"
#include "protocol/server_envelope.h"
#include "tests/connection/client/gateway_access_for.h"
#include "tests/support/fake_gateway.h"

namespace parlexo {
namespace {

using testing::accessTo;
using testing::bodyOf;
using testing::FakeGateway;

/// The bytes that a call sends, whatever comes back.
std::string sentBy(const std::function<void(GatewayClient&)>& call) {
  FakeGateway gateway("");
  const GatewayAccess access = accessTo(gateway.endpoint());
  GatewayClient client(access);
  call(client);
  return gateway.lastRequest();
}

TEST(Request, isOneHttpPostWithItsActionAndNothingElse) {
  FakeGateway gateway("");
  const GatewayAccess access = accessTo(gateway.endpoint());
  GatewayClient client(access);
  protocol::getVersionResponse response;
  EXPECT_NE(client.getVersion(response), 0);
  const std::string body =
      testing::envelopeStart + "<ns3:getVersion></ns3:getVersion>" + testing::envelopeEnd;
  EXPECT_EQ(gateway.lastRequest(),
            "POST /ccx/onlineCommunication HTTP/1.1\r\n"
            "Host: 127.0.0.1:" +
                std::to_string(gateway.port()) +
                "\r\n"
                "User-Agent: gSOAP/2.8\r\n"
                "Content-Type: text/xml; charset=utf-8\r\n"
                "Content-Length: " +
                std::to_string(body.size()) +
                "\r\n"
                "Connection: close\r\n"
                "SOAPAction: \"capeconnect:onlineCommunication:onlineCommunicationPortType#getVersion\"\r\n"
                "\r\n" +
                body);
}

struct RequestCase {
  std::string name;
  std::function<void(GatewayClient&)> call;
  std::string element;
};

/// A call of one operation, whose answer does not count.
template <class Response, class Method, class... Arguments>
std::function<void(GatewayClient&)> calling(Method method, Arguments... arguments) {
  return [=](GatewayClient& client) {
    Response response;
    EXPECT_NE((client.*method)(arguments..., response), 0);
  };
}

std::string text(const std::string& name, const std::string& value) {
  return "<" + name + " xsi:type=\"xsd:string\">" + value + "</" + name + ">";
}

std::string flag(const std::string& name, bool value) {
  return "<" + name + " xsi:type=\"xsd:boolean\">" + (value ? "true" : "false") + "</" + name + ">";
}

/// Every field type and everything in which the operations differ from each other's habits.
std::vector<RequestCase> requestCases() {
  static const unsigned char bytes[] = {0x00, 0xFF, 'G', 'I', 'F'};
  static const protocol::BinaryData file{bytes, sizeof bytes};
  return {
      {"sessionStart",
       calling<protocol::sessionStartResponse>(&GatewayClient::sessionStart, "anna", "a<b>&\"'"),
       text("sUser", "anna") + text("sPassword", "a&lt;b&gt;&amp;\"'")},
      {"sendMms", calling<protocol::sendMmsResponse>(&GatewayClient::sendMms, "T", "d", "a.gif", file, "+1"),
       text("sSession", "T") + text("sDescription", "d") + text("sFileName", "a.gif") +
           "<oData xsi:type=\"xsd:base64Binary\">AP9HSUY=</oData>" + text("sListPhoneNumbers", "+1")},
      {"sendFax",
       calling<protocol::sendFaxResponse>(&GatewayClient::sendFax, "T", "empty", protocol::BinaryData(),
                                          "+1"),
       text("sSession", "T") + text("sFileName", "empty") + "<oData xsi:type=\"xsd:base64Binary\"></oData>" +
           text("sListPhoneNumbers", "+1")},
      {"partnerAddEvent",
       calling<protocol::partnerAddEventResponse>(&GatewayClient::partnerAddEvent, "T", "u", "e", "p", -0.1,
                                                  "d"),
       text("sSession", "T") + text("sUser", "u") + text("sEventType", "e") + text("sPackageType", "p") +
           "<dAmount xsi:type=\"xsd:double\">-0.1</dAmount>" + text("sDescription", "d")},
      {"editEmailMessaging",
       calling<protocol::editEmailMessagingResponse>(
           &GatewayClient::editEmailMessaging, "T", true, "c", false, "1", "2", "3", true,
           protocol::StopsAtEndKeyword(false), protocol::StopsAtDoubleLine(true)),
       text("sSession", "T") + flag("bEmailEnable", true) + text("sEmailCode", "c") +
           flag("bEmailFilter", false) + text("sEmailFilter1", "1") + text("sEmailFilter2", "2") +
           text("sEmailFilter3", "3") + flag("bEmailSmsSplit", true) + flag("bEmailEndStop", false) +
           flag("bEmailDoubleLine", true)},
  };
}

TEST(Request, hasItsFieldsInOrderWithTheirTypes) {
  for (const RequestCase& each : requestCases()) {
    const std::string sent = sentBy(each.call);
    std::string expected = testing::envelopeStart;
    expected.append("<ns3:").append(each.name).append(">").append(each.element);
    expected.append("</ns3:").append(each.name).append(">").append(testing::envelopeEnd);
    EXPECT_EQ(bodyOf(sent), expected);
    EXPECT_NE(sent.find("#" + each.name + "\"\r\n"), std::string::npos) << each.name;
  }
}

TEST(Request, textTravelsAsOneCharacterAByte) {
  std::string everyByte;
  for (int byte = 1; byte < 256; ++byte) everyByte.push_back(static_cast<char>(byte));
  const std::string sent = sentBy(calling<protocol::getStatusResponse>(
      &GatewayClient::getStatus, everyByte, "\x80\x9F \xA0\xE9\xFF\r\n\t\x01\x7F"));
  // 0x80 to 0x9F as numbers, what follows in UTF-8, a carriage return so that no parser drops it.
  EXPECT_NE(sent.find(">&#x80;&#x9F; \xC2\xA0\xC3\xA9\xC3\xBF&#xD;\n\t?&#x7F;<"), std::string::npos) << sent;

  std::string expected = everyByte;
  for (char& c : expected) {
    if (static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r') c = '?';
  }
  protocol::RequestReader reader(bodyOf(sent));
  protocol::getStatus read;
  ASSERT_TRUE(reader.read(read));
  EXPECT_EQ(read.sSession, expected);
}

}  // namespace
}  // namespace parlexo
