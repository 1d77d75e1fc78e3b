// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>

#include "connection/client/gateway_client.h"
#include "connection/client/wire_text.h"
#include "protocol/server_envelope.h"
#include "tests/connection/client/gateway_access_for.h"
#include "tests/support/fake_gateway.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

/// A status query that gets the reply `http`.
struct Query {
  explicit Query(const std::string& http)
      : gateway(http), access(accessTo(gateway.endpoint())), client(access) {
    response.nErrorCode = 99;
    response.sStatus = "left over";
    result = client.getStatus("T", "R1", response);
  }

  [[nodiscard]] std::string status() const { return response.sStatus ? response.sStatus : "(null)"; }

  FakeGateway gateway;
  GatewayAccess access;
  GatewayClient client;
  protocol::getStatusResponse response;
  int result = 0;
};

std::string statusElement(const std::string& fields) {
  return "<m:getStatusResponse>" + fields + "</m:getStatusResponse>";
}

TEST(Response, isReadInEveryForm) {
  const std::string code = "<nErrorCode xsi:type=\"xsd:int\">7</nErrorCode>";
  const std::string status = "<sStatus xsi:type=\"xsd:string\">Sent</sStatus>";
  const std::string entry = "<t:x xmlns:t=\"urn:t\" S:mustUnderstand=\"1\"><deep>1</deep></t:x>";
  const Cases<const char*, std::string, std::string, std::int32_t, const char*> answers = {
      {"as agreed", statusElement(code + status), "", 7, "Sent"},
      {"other order", statusElement(status + code), "", 7, "Sent"},
      {"no types, blanks around the number",
       statusElement("<nErrorCode> \n-2147483648 </nErrorCode><sStatus>Sent</sStatus>"), "", -2147483648,
       "Sent"},
      {"unknown elements before, between and behind",
       statusElement("<a/>" + code + "<b x=\"/>\">t<c>u<d/></c>v</b>" + status + "<e xmlns:q=\"urn:q\"/>"),
       "", 7, "Sent"},
      {"the first of two counts", statusElement(code + status + "<sStatus>Other</sStatus>"), "", 7, "Sent"},
      {"text absent", statusElement(code), "", 7, "(null)"},
      {"text nil", statusElement(code + "<sStatus xsi:nil=\"true\"/>"), "", 7, "(null)"},
      {"text empty", statusElement(code + "<sStatus/>"), "", 7, ""},
      {"header passed over, whatever it demands", statusElement(code + status),
       "<S:Header>" + entry + "</S:Header>", 7, "Sent"},
      {"empty header", statusElement(code + status), "<S:Header/>", 7, "Sent"},
      {"references",
       statusElement("<sStatus href=\"#id0\"/><nErrorCode href=\"#id1\"/>") +
           "<multiRef id=\"id1\" xsi:type=\"xsd:int\">7</multiRef><multiRef "
           "id=\"unasked\"><x>1</x></multiRef>"
           "<multiRef id=\"id0\" xsi:type=\"xsd:string\">Sent</multiRef>",
       "", 7, "Sent"},
      {"one target for two references",
       statusElement("<sStatus href=\"#id0\"/><nErrorCode href=\"#id0\"/>") +
           "<multiRef id=\"id0\">7</multiRef>",
       "", 7, "7"},
  };
  for (const auto& [what, body, header, readCode, readStatus] : answers) {
    const Query query(httpReply(envelope(body, header)));
    EXPECT_EQ(query.result, 0) << what;
    EXPECT_EQ(query.response.nErrorCode, readCode) << what;
    EXPECT_EQ(query.status(), readStatus) << what;
  }
}

TEST(Response, textMayMixUnicodeAndCodePage) {
  const Cases<const char*, const char16_t*> texts = {
      {"Sent \xE2\x80\x93 \xC4\x80&#256;&#x2013;", u"Sent \u2013 \u0100\u0100\u2013"},
      {"\xF0\x9F\x98\x80&#xD83D;&#xDE00;!", u"\U0001F600\U0001F600!"},
      {"\xC2\x80&#x93;\xC2\x81 \xC2\xA0\xC3\xA9", u"\u20AC\u201C\u0081 \u00A0\u00E9"},
      {"\x93 \xE9 \xE9", u"\u201C \u00E9 \u00E9"},  // no UTF-8: bytes of the code page
      {"&#xD83D;! &#xFFFE;", u"\uFFFD! \uFFFD"},
      {"&#128512;&#x0001F600;&#x110000;&#4294967361;", u"\U0001F600\U0001F600\uFFFD\uFFFD"},
      {"&eacute;&Eacute;&yuml;&nbsp;&amp;lt;&apos;&quot;", u"\u00E9\u00C9\u00FF\u00A0&lt;'\""},
      {"a & b &own; &#; &#x1g; &", u"a & b &own; &#; &#x1g; &"},
      {"<![CDATA[&lt;<b>\xE2\x80\x93 \xE9 \xC0\xBC ]]><!-- &lt; --><?p i?><b>x<c/></b>",
       u"&lt;<b>\u2013 \u00E9 \u00C0\u00BC <b>x<c/></b>"},
      {"ends&#0; here", u"ends"},
      {"x", u"x"},
      {"\xE9", u"\u00E9"},
  };
  for (const auto& [sent, read] : texts) {
    const std::string fields = "<nErrorCode>0</nErrorCode><sStatus>" + std::string(sent) + "</sStatus>";
    const Query query(httpReply(envelope(statusElement(fields))));
    EXPECT_EQ(query.result, 0) << sent;
    EXPECT_EQ(fromWire(query.response.sStatus).toStdU16String(), read) << sent;
  }
  std::string latin = envelope(statusElement("<nErrorCode>0</nErrorCode><sStatus>\xC3\xA9</sStatus>"));
  latin.replace(latin.find("UTF-8"), 5, "ISO-8859-1");
  EXPECT_EQ(fromWire(Query(httpReply(latin)).response.sStatus).toStdU16String(), u"\u00C3\u00A9");
}

TEST(Response, isReadInChunksOrUntilTheConnectionCloses) {
  const std::string body = envelope(statusElement("<nErrorCode>0</nErrorCode><sStatus>Sent</sStatus>"));
  const std::string head = "HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\n";
  const std::string unbounded = std::string(head).append("\r\n").append(body);
  char size[16];
  std::snprintf(size, sizeof size, "%zx\r\n", body.size() - 10);
  const std::string chunked = head + "Transfer-Encoding: chunked\r\n\r\na\r\n" + body.substr(0, 10) + "\r\n" +
                              size + body.substr(10) + "\r\n0\r\n\r\n";
  for (const std::string& reply : {chunked, unbounded, "HTTP/1.1 100 Continue\r\n\r\n" + unbounded}) {
    const Query query(reply);
    EXPECT_EQ(query.result, 0) << reply;
    EXPECT_EQ(query.status(), "Sent");
  }
}

TEST(Response, valuesOfEveryTypeAreRead) {
  FakeGateway gateway(httpReply(envelope(
      "<m:partnerGetCostByCountryResponse><nErrorCode>0</nErrorCode><dCostWholesaleFlat>0.1</"
      "dCostWholesaleFlat>"
      "<dCostWholesalePerHalfMin>-1.5E3</dCostWholesalePerHalfMin><dCostResellerFlat>INF</dCostResellerFlat>"
      "<dCostResellerPerHalfMin>+2</dCostResellerPerHalfMin><sNetworks>n</sNetworks>"
      "</m:partnerGetCostByCountryResponse>")));
  const GatewayAccess access = accessTo(gateway.endpoint());
  GatewayClient client(access);
  protocol::partnerGetCostByCountryResponse costs;
  ASSERT_EQ(client.partnerGetCostByCountry("T", "AU", true, "p", "c", "s", costs), 0);
  EXPECT_EQ(costs.dCostWholesaleFlat, 0.1);
  EXPECT_EQ(costs.dCostWholesalePerHalfMin, -1500);
  EXPECT_GT(costs.dCostResellerFlat, 1e300);
  EXPECT_EQ(costs.dCostResellerPerHalfMin, 2);

  gateway.setAnswer(httpReply(envelope(
      "<m:getEmailMessagingResponse><bEmailEnable>true</bEmailEnable><bEmailFilter>false</bEmailFilter>"
      "<bEmailSmsSplit>1</bEmailSmsSplit><nErrorCode>0</nErrorCode></m:getEmailMessagingResponse>")));
  GatewayClient second(access);
  protocol::getEmailMessagingResponse preferences;
  ASSERT_EQ(second.getEmailMessaging("T", preferences), 0);
  EXPECT_TRUE(preferences.bEmailEnable);
  EXPECT_FALSE(preferences.bEmailFilter);
  EXPECT_TRUE(preferences.bEmailSmsSplit);
}

TEST(Response, needsItsAmountUnlessItIsARefusal) {
  const auto result = [](const std::string& fields) {
    FakeGateway gateway(
        httpReply(envelope("<m:getAccountBalanceResponse>" + fields + "</m:getAccountBalanceResponse>")));
    const GatewayAccess access = accessTo(gateway.endpoint());
    protocol::getAccountBalanceResponse balance;
    return GatewayClient(access).getAccountBalance("T", balance);
  };
  EXPECT_EQ(result("<dValue>0</dValue><nErrorCode>0</nErrorCode>"), 0);
  EXPECT_NE(result("<nErrorCode>0</nErrorCode>"), 0);
  EXPECT_NE(result("<dValue xsi:nil=\"true\"/><nErrorCode>0</nErrorCode>"), 0);
  EXPECT_EQ(result("<nErrorCode>7</nErrorCode>"), 0);
}

/// The call must fail with a cleared record.
void expectFailure(const std::string& http, const std::string& what) {
  const Query query(http);
  EXPECT_NE(query.result, 0) << what;
  EXPECT_EQ(query.response.nErrorCode, 0) << what;
  EXPECT_EQ(query.status(), "(null)") << what;
}

TEST(Response, invalidReplyFailsAndClearsTheRecord) {
  const std::string good = statusElement("<nErrorCode>7</nErrorCode><sStatus>Sent</sStatus>");
  const std::vector<std::pair<const char*, std::string>> bodies{
      {"empty", ""},
      {"not XML", "Service unavailable"},
      {"empty body", envelope("")},
      {"other element", envelope("<m:sendSmsResponse><nErrorCode>0</nErrorCode></m:sendSmsResponse>")},
      {"other namespace",
       envelope("<getStatusResponse xmlns=\"urn:x\"><nErrorCode>0</nErrorCode></getStatusResponse>")},
      {"no code", envelope(statusElement("<sStatus>Sent</sStatus>"))},
      {"code is a word", envelope(statusElement("<sStatus>Sent</sStatus><nErrorCode>none</nErrorCode>"))},
      {"text cut inside a character",
       envelope(statusElement("<nErrorCode>0</nErrorCode><sStatus>\xE2\x80</sStatus>"))},
      {"code too large", envelope(statusElement("<nErrorCode>2147483648</nErrorCode>"))},
      {"text refers to nothing",
       envelope(statusElement("<nErrorCode>0</nErrorCode><sStatus href=\"#id0\"/>"))},
      {"reference to itself",
       envelope(statusElement("<nErrorCode id=\"a\" href=\"#a\"/><sStatus>Sent</sStatus>"))},
      {"end tag of another element",
       envelope("<m:getStatusResponse><nErrorCode>0</nErrorCode></m:sendSmsResponse>")},
      {"unknown element with the wrong end tag",
       envelope(statusElement("<nErrorCode>0</nErrorCode><a>1</b>"))},
      {"unknown entity", envelope(statusElement("<nErrorCode>&seven;</nErrorCode>"))},
      {"no SOAP envelope",
       "<x xmlns:m=\"http://www.parlexo.example/onlineCommunication/binding\">" + good + "</x>"},
  };
  for (const auto& [what, body] : bodies) {
    expectFailure(httpReply(body), what);
    expectFailure(httpReply(body, "500 Internal Server Error"), what);
  }
  for (const char* status :
       {"301 Moved", "407 Proxy Authentication Required", "400 Bad Request", "404 Not Found",
        "500 Internal Server Error", "503 Busy", "600 Odd", "199 Odd"}) {
    expectFailure(httpReply(envelope(good), status), status);
    expectFailure(httpReply("<html/>", status), status);
  }
  expectFailure("", "closed without a word");
  expectFailure("SSH-2.0-OpenSSH_9.2\r\n", "another protocol");
}

TEST(Response, truncatedReplyIsNeverAccepted) {
  const std::string whole =
      httpReply(envelope(statusElement("<nErrorCode>0</nErrorCode><sStatus href=\"#a\"/>") +
                         "<multiRef id=\"a\">Sent</multiRef>"));
  FakeGateway gateway("");
  const GatewayAccess access = accessTo(gateway.endpoint());
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    gateway.setAnswer(whole.substr(0, length));
    GatewayClient client(access);
    protocol::getStatusResponse response;
    const int result = client.getStatus("T", "R1", response);
    EXPECT_EQ(result == 0, length == whole.size()) << length;
    EXPECT_EQ(response.sStatus != nullptr, length == whole.size()) << length;
  }
}

TEST(Response, hostileSizesAndDepthsFail) {
  std::string deep;
  for (int i = 0; i < 100'000; ++i) deep += "<a>";
  expectFailure(httpReply(envelope(statusElement(deep))), "deep nesting");
  expectFailure(httpReply(envelope(deep)), "deep nesting in place of the answer");
  expectFailure(httpReply(envelope(statusElement("<nErrorCode>0</nErrorCode><sStatus>" +
                                                 std::string(33u << 20, 'x') + "</sStatus>"))),
                "huge text");
  expectFailure("HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nContent-Length: 99999999999999\r\n\r\n<",
                "huge length");
  expectFailure("HTTP/1.1 200 OK\r\nX: " + std::string(1u << 20, 'x') + "\r\n\r\n", "huge header");
  std::string bomb = "<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\">";
  for (char name = 'b'; name < 'k'; ++name) {
    bomb += std::string("<!ENTITY ") + name + " \"";
    for (int i = 0; i < 10; ++i) bomb += std::string("&") + static_cast<char>(name - 1) + ";";
    bomb += "\">";
  }
  expectFailure(
      httpReply(bomb + "]>" + envelope(statusElement("<nErrorCode>&j;</nErrorCode><sStatus>&j;</sStatus>"))),
      "entity expansion");
}

TEST(Response, soapFaultsReturnTheRuntimeCode) {
  const std::string soap12 = "http://www.w3.org/2003/05/soap-envelope";
  const std::pair<const char*, int> faults[] = {
      {"<S:Fault><faultcode>S:Server</faultcode><faultstring>no</faultstring></S:Fault>", 2},
      {"<S:Fault><faultcode>S:Client</faultcode></S:Fault>", 1},
      {"<S:Fault><detail><q:a xmlns:q=\"urn:q\">b<c/></q:a></detail><faultactor>urn:a</faultactor>"
       "<faultstring>no</faultstring><odd>x</odd><faultcode>S:Server</faultcode></S:Fault>",
       2},
      {"<S:Fault><faultcode>Strange</faultcode></S:Fault>", 12},
      {"<S:Fault><faultcode href=\"#nowhere\"/></S:Fault>", 2},
      {"<S:Fault/>", 2},
  };
  for (const auto& [fault, result] : faults) {
    for (const char* status : {"200 OK", "500 Internal Server Error"}) {
      const Query query(httpReply(envelope(fault), status));
      EXPECT_EQ(query.result, result) << fault;
      EXPECT_EQ(query.status(), "(null)");
    }
  }
  std::string newForm = envelope(
      "<S:Fault><S:Code><S:Value>S:Receiver</S:Value><S:Subcode><S:Value>S:x</S:Value><odd/></S:Subcode></"
      "S:Code>"
      "<S:Reason><S:Text xml:lang=\"en\">no</S:Text></S:Reason><S:Node>urn:n</S:Node><S:Role>urn:r</S:Role>"
      "<S:Detail><a>b</a></S:Detail></S:Fault>");
  const std::string soap11 = "http://schemas.xmlsoap.org/soap/envelope/";
  newForm.replace(newForm.find(soap11), soap11.size(), soap12);
  EXPECT_EQ(Query(httpReply(newForm, "500 Internal Server Error")).result, 2);
}

TEST(Response, isWrittenInTheDocumentedOrder) {
  const auto whole = [](const char* content) { return envelopeStart + content + envelopeEnd; };
  EXPECT_EQ(protocol::responseEnvelope(protocol::getStatusResponse{.nErrorCode = -3, .sStatus = "a\x01<"}),
            whole("<ns3:getStatusResponse><nErrorCode xsi:type=\"xsd:int\">-3</nErrorCode>"
                  "<sStatus xsi:type=\"xsd:string\">a?&lt;</sStatus></ns3:getStatusResponse>"));
  EXPECT_EQ(
      protocol::responseEnvelope(protocol::sendSmsResponse{}),
      whole("<ns3:sendSmsResponse><nErrorCode xsi:type=\"xsd:int\">0</nErrorCode></ns3:sendSmsResponse>"));
  EXPECT_EQ(protocol::faultEnvelope("SOAP-ENV:Server", "a & b"),
            whole("<SOAP-ENV:Fault><faultcode xsi:type=\"xsd:QName\">SOAP-ENV:Server</faultcode>"
                  "<faultstring xsi:type=\"xsd:string\">a &amp; b</faultstring></SOAP-ENV:Fault>"));
}

TEST(RequestReader, readsBinaryFieldsStrictly) {
  const Cases<const char*, bool, const char*> cases = {
      {"QUJD", true, "ABC"}, {" QU\r\nI= ", true, "AB"}, {"QUJ", false, ""},
      {"Q===", false, ""},   {"QQ=A", false, ""},        {"Q*JD", false, ""},
  };
  for (const auto& [text, isGood, bytes] : cases) {
    protocol::RequestReader reader(
        envelope(std::string("<m:sendFax><oData>") + text + "</oData></m:sendFax>"));
    protocol::sendFax request;
    EXPECT_EQ(reader.read(request), isGood) << text;
    const auto* data = reinterpret_cast<const char*>(request.oData.data);
    EXPECT_EQ(std::string(data, static_cast<std::size_t>(request.oData.length)), bytes);
  }
}

}  // namespace
}  // namespace parlexo::test
