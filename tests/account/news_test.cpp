#include "account/core/news.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/account/account_rig.h"

namespace parlexo {
namespace {

using simulator::FaultKind;

class News : public testing::Test, protected AccountRig {};

TEST_F(News, comeWithoutASessionAndAsTheyWereWritten) {
  const QString odd = QStringLiteral("<b>50 % off</b> & more\r\n\r\n€ ]]> caf\u00e9 \"quoted\"");
  simulator.setNews(odd);
  state.session.clear();
  EXPECT_EQ(fetchNews(gateway), odd);
  misbehave(FaultKind::Code, "getNews", 1);
  EXPECT_EQ(fetchNews(gateway), std::nullopt);
  simulator.stop();
  EXPECT_EQ(fetchNews(gateway), std::nullopt);
}

// "Words [address] words": what became a link stands in brackets.
std::string marked(const char* news) {
  QString text;
  for (const NewsPart& part : newsParts(QString::fromUtf8(news)))
    text += part.page.isEmpty() ? part.text : QStringLiteral("[%1]").arg(part.text);
  return text.toStdString();
}

TEST(NewsParts, onlyPlainWebAddressesBecomeLinks) {
  const std::pair<const char*, const char*> cases[] = {
      {"", ""},
      {"no link", "no link"},
      {"See http://a.example/x?y=1#z, or HTTPS://b.example.",
       "See [http://a.example/x?y=1#z], or [HTTPS://b.example]."},
      {"(https://a.example/b_(c)) (https://a.example)", "([https://a.example/b_(c))] ([https://a.example])"},
      {"<a href=\"https://a.example/\">bank</a>", "<a href=\"[https://a.example/]\">bank</a>"},
      {"https://bank.example@evil.example/", "https://bank.example@evil.example/"},
      {"file:///etc/passwd javascript:alert(1) ftp://a.example mailto:a@b.example",
       "file:///etc/passwd javascript:alert(1) ftp://a.example mailto:a@b.example"},
      {"xhttp://a.example http:// http://[ https://%zz", "xhttp://a.example http:// http://[ https://%zz"},
      {"one\r\ntwo\rthree\nfour\x01\x7f\tfive", "one\ntwo\nthree\nfour\tfive"},
  };
  for (const auto& [news, expected] : cases) EXPECT_EQ(marked(news), expected);
}

}  // namespace
}  // namespace parlexo
