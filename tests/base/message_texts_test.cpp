// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/message_texts.h"

#include <gtest/gtest.h>

#include "base/product.h"

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

class ServiceHost : public testing::Test {
 protected:
  void TearDown() override { setServiceHost({}); }
};

TEST_F(ServiceHost, pagesFollowTheChosenHostAndFallBackToTheCompiledOne) {
  EXPECT_EQ(webPage(u"/signup.php"_s), u"https://"_s + defaultServiceHost() + u"/signup.php"_s);
  setServiceHost(u"gateway.example.org"_s);
  EXPECT_EQ(webPage(u"/signup.php"_s), u"https://gateway.example.org/signup.php"_s);
  setServiceHost({});
  EXPECT_EQ(webPage({}), u"https://"_s + defaultServiceHost());
}

TEST_F(ServiceHost, balanceWarningsNameTheSite) {
  setServiceHost(u"pay.example"_s);
  EXPECT_EQ(text(TextId::BalanceLow),
            u"Your account balance is less than $2.00.\r\nPlease go to https://pay.example and top up your "
            u"account balance."_s);
  EXPECT_EQ(
      text(TextId::BalanceZero),
      u"Your account balance is zero.\r\nPlease go to https://pay.example, sign-in and add credit to your "
      u"account.\r\n\r\nIf you wish to trial our services then this may only be done via the website "
      u"portal. In the web portal click the 'Free Trial' button. The Parlexo Client software requires "
      u"credit to send messages."_s);
}

TEST(MessageTexts, numberTakesThePlaceOfTheFirstPlaceholder) {
  EXPECT_EQ(withNumber(u"Error code: %i"_s, 12), u"Error code: 12"_s);
  EXPECT_EQ(withNumber(u"Error code: %d"_s, -1), u"Error code: -1"_s);
  EXPECT_EQ(withNumber(u"%i of %i"_s, 3), u"3 of %i"_s);
  EXPECT_EQ(withNumber(u"no code"_s, 3), u"no code"_s);
}

}  // namespace
}  // namespace parlexo
