// SPDX-License-Identifier: GPL-3.0-or-later

#include "connection/client/gateway_client.h"
#include "protocol/server_envelope.h"
#include "tests/connection/client/gateway_access_for.h"
#include "tests/support/fake_gateway.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

/// The bytes that a call sends.
std::string sentBy(const std::function<void(GatewayClient&)>& call) {
  FakeGateway gateway("");
  const GatewayAccess access = accessTo(gateway.endpoint());
  GatewayClient client(access);
  call(client);
  return gateway.lastRequest();
}

/// A call of one operation, which gets no reply.
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

// Every field type. The names and the order of all fields are compared with the documentation elsewhere.
TEST(Request, hasItsFieldsInOrderWithTheirTypes) {
  static const unsigned char bytes[] = {0x00, 0xFF, 'G', 'I', 'F'};
  const protocol::BinaryData file{bytes, sizeof bytes};
  const Cases<std::string, std::function<void(GatewayClient&)>, std::string> cases = {
      {"sessionStart",
       calling<protocol::sessionStartResponse>(&GatewayClient::sessionStart, "anna", "a<b>&\"'"),
       text("sUser", "anna") + text("sPassword", "a&lt;b&gt;&amp;\"'")},
      {"sendMms", calling<protocol::sendMmsResponse>(&GatewayClient::sendMms, "T", "d", "a.gif", file, "+1"),
       text("sSession", "T") + text("sDescription", "d") + text("sFileName", "a.gif") +
           "<oData xsi:type=\"xsd:base64Binary\">AP9HSUY=</oData>" + text("sListPhoneNumbers", "+1")},
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
  for (const auto& [name, call, fields] : cases) {
    const std::string sent = sentBy(call);
    std::string expected = envelopeStart;
    expected.append("<ns3:").append(name).append(">").append(fields);
    expected.append("</ns3:").append(name).append(">").append(envelopeEnd);
    EXPECT_EQ(httpBody(sent), expected);
    EXPECT_NE(sent.find("#" + name + "\"\r\n"), std::string::npos) << name;
  }
}

TEST(Request, isOneHttpPostWithItsAction) {
  FakeGateway gateway("");
  const GatewayAccess access = accessTo(gateway.endpoint());
  GatewayClient client(access);
  calling<protocol::getVersionResponse> (&GatewayClient::getVersion)(client);
  const std::string body = envelopeStart + "<ns3:getVersion></ns3:getVersion>" + envelopeEnd;
  EXPECT_EQ(
      gateway.lastRequest(),
      "POST /ccx/onlineCommunication HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(gateway.port()) +
          "\r\nUser-Agent: gSOAP/2.8\r\nContent-Type: text/xml; charset=utf-8\r\nContent-Length: " +
          std::to_string(body.size()) +
          "\r\nConnection: close\r\n"
          "SOAPAction: \"capeconnect:onlineCommunication:onlineCommunicationPortType#getVersion\"\r\n\r\n" +
          body);
}

TEST(Request, textHasOneCharacterForEachByte) {
  std::string everyByte;
  for (int byte = 1; byte < 256; ++byte) everyByte.push_back(static_cast<char>(byte));
  const std::string sent = sentBy(calling<protocol::getStatusResponse>(
      &GatewayClient::getStatus, everyByte, "\x80\x9F \xA0\xE9\xFF\r\n\t\x01\x7F"));
  // References for 0x80 to 0x9F and for carriage returns, which parsers drop, and UTF-8 for the rest.
  EXPECT_NE(sent.find(">&#x80;&#x9F; \xC2\xA0\xC3\xA9\xC3\xBF&#xD;\n\t?&#x7F;<"), std::string::npos) << sent;

  std::string expected = everyByte;
  for (char& c : expected) {
    if (static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r') c = '?';
  }
  protocol::RequestReader reader(httpBody(sent));
  protocol::getStatus read;
  ASSERT_TRUE(reader.read(read));
  EXPECT_EQ(read.sSession, expected);
}

}  // namespace
}  // namespace parlexo::test
