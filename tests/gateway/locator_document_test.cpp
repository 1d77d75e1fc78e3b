#include "gateway/core/locator_document.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/gateway/locator_text.h"

namespace parlexo {
namespace {

using testing::lines;
using testing::locatorText;
using testing::serverLine;
using testing::versionLine;
using testing::xmlHead;

TEST(LocatorDocument, tellsTheFiveValuesAndTheEndpoint) {
  for (const std::string& each : std::vector<std::string>{
           locatorText,
           lines({xmlHead, " \t" + serverLine + " ", "<!-- more -->", "", "  " + versionLine}, "\r\n"),
           lines({"", serverLine, "<version product=\"server\" version=\"9\">", versionLine}),
           lines({"anything", serverLine, versionLine, "<version product=\"client\" version=\"9\"/>"}),
           locatorText.substr(0, locatorText.find("/>")),
       }) {
    const auto location = parseLocatorDocument(QByteArray::fromStdString(each));
    ASSERT_TRUE(location) << each;
    EXPECT_EQ(location->host, "10.0.0.7");
    EXPECT_EQ(location->port, 8080);
    EXPECT_EQ(location->maxFileSize, 2097152);
    EXPECT_EQ(location->maxFileSizeMobile, 51200);
    EXPECT_EQ(location->latestClientVersion, "2.24");
    EXPECT_EQ(location->endpoint, "http://10.0.0.7:8080/ccx/onlineCommunication");
  }
}

TEST(LocatorDocument, readsNumbersAsFarAsTheyGo) {
  struct Case {
    const char* port;
    int read;
  };
  for (const Case& each :
       {Case{"abc", 0}, {" 81x", 81}, {"-1", -1}, {"+9", 9}, {"0x10", 0}, {"99999999999", 2147483647}}) {
    const std::string server =
        std::string("<server ip=\"h\" port=\"") + each.port + "\" maxfilesize=\"1\" maxfilesizemobile=\"2\">";
    const auto location =
        parseLocatorDocument(QByteArray::fromStdString(lines({xmlHead, server, versionLine})));
    ASSERT_TRUE(location) << each.port;
    EXPECT_EQ(location->port, each.read) << each.port;
    EXPECT_EQ(location->endpoint, QStringLiteral("http://h:%1/ccx/onlineCommunication").arg(each.read));
  }
}

TEST(LocatorDocument, ofAnotherFormTellsNothing) {
  struct Case {
    const char* what;
    std::vector<std::string> document;
  };
  for (const Case& each : std::vector<Case>{
           {"nothing", {}},
           {"one line", {xmlHead}},
           {"server on line 1", {serverLine, versionLine}},
           {"server on line 3", {xmlHead, "", serverLine, versionLine}},
           {"version first", {xmlHead, versionLine, serverLine}},
           {"no version", {xmlHead, serverLine}},
           {"version on the server's line", {xmlHead, serverLine + versionLine}},
           {"another product", {xmlHead, serverLine, R"(<version product="server" version="1">)"}},
           {"text before the version", {xmlHead, serverLine, "x" + versionLine}},
           {"attribute between",
            {xmlHead, serverLine, R"(<version product="client" build="1" version="2">)"}},
           {"empty version", {xmlHead, serverLine, R"(<version product="client" version="">)"}},
           {"cut version", {xmlHead, serverLine, R"(<version product="client" version="2.2)"}},
           {"the first one counts", {xmlHead, serverLine, R"(<version product="client" >)", versionLine}},
           {"extra attribute",
            {xmlHead, R"(<server ip="h" port="1" name="x" maxfilesize="1" maxfilesizemobile="2">)",
             versionLine}},
           {"other order",
            {xmlHead, R"(<server port="1" ip="h" maxfilesize="1" maxfilesizemobile="2">)", versionLine}},
           {"empty host",
            {xmlHead, R"(<server ip="" port="1" maxfilesize="1" maxfilesizemobile="2">)", versionLine}},
           {"other quotes",
            {xmlHead, "<server ip='h' port='1' maxfilesize='1' maxfilesizemobile='2'>", versionLine}},
           {"three attributes", {xmlHead, R"(<server ip="h" port="1" maxfilesize="1">)", versionLine}},
       }) {
    EXPECT_FALSE(parseLocatorDocument(QByteArray::fromStdString(lines(each.document)))) << each.what;
  }
}

}  // namespace
}  // namespace parlexo
