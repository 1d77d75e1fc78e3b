// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/message_texts.h"

#include "base/product.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

struct ServiceHost : testing::Test {
  void TearDown() override { setServiceHost({}); }
};

TEST_F(ServiceHost, pagesUseTheChosenOrTheDefaultHost) {
  EXPECT_EQ(webPage(u"/signup.php"_s), u"https://"_s + defaultServiceHost() + u"/signup.php"_s);
  setServiceHost(u"gateway.example.org"_s);
  EXPECT_EQ(webPage(u"/signup.php"_s), u"https://gateway.example.org/signup.php"_s);
  setServiceHost({});
  EXPECT_EQ(webPage({}), u"https://"_s + defaultServiceHost());
}

TEST_F(ServiceHost, balanceWarningsNameTheSite) {
  setServiceHost(u"pay.example"_s);
  for (const auto id : {TextId::BalanceLow, TextId::BalanceZero})
    EXPECT_TRUE(text(id).contains(u"\r\nPlease go to https://pay.example"_s));
}

TEST(MessageTexts, numberReplacesTheFirstPlaceholder) {
  EXPECT_EQ(withNumber(u"Error code: %i"_s, 12), u"Error code: 12"_s);
  EXPECT_EQ(withNumber(u"Error code: %d"_s, -1), u"Error code: -1"_s);
  EXPECT_EQ(withNumber(u"%i of %i"_s, 3), u"3 of %i"_s);
  EXPECT_EQ(withNumber(u"no code"_s, 3), u"no code"_s);
}

}  // namespace
}  // namespace parlexo::test
