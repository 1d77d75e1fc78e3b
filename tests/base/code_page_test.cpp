// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/code_page.h"

#include "tests/support/test.h"

namespace parlexo::test {
namespace {

TEST(CodePage, everyByteRoundTrips) {
  QByteArray all;
  for (int byte = 0; byte < 256; ++byte) all.append(static_cast<char>(byte));
  const QString text = fromCodePage(all);
  EXPECT_EQ(text.size(), 256);
  EXPECT_EQ(toCodePage(text), all);
  EXPECT_TRUE(fitsCodePage(text));
}

TEST(CodePage, textsHaveTheBytesOfTheTable) {
  const Cases<const char*, QString, QByteArray, bool> cases = {
      {"nothing", u""_s, "", true},
      {"Latin letters", u"Zoë é"_s, "Zo\xEB \xE9", true},
      {"euro sign and low quotes", u"€‚ƒ„…"_s, "\x80\x82\x83\x84\x85", true},
      {"quotes and dashes", u"‘’“”•–—™"_s, "\x91\x92\x93\x94\x95\x96\x97\x99", true},
      {"letters among the controls", u"Œ\u0178"_s, "\x8C\x9F", true},
      {"undefined byte", u"\u0081"_s, "\x81", true},
      {"Cyrillic letters", u"Жук"_s, "???", false},
      {"surrogate pair", u"a😀b"_s, "a?b", false},
      {"half a pair at the end", QString(QChar(0xD83D)), "?", false},
      {"half a pair", QString(QChar(0xD83D)) + u"x"_s, "?x", false},
  };
  for (const auto& [what, text, bytes, fits] : cases) {
    EXPECT_EQ(toCodePage(text), bytes) << what;
    EXPECT_EQ(fitsCodePage(text), fits) << what;
  }
}

}  // namespace
}  // namespace parlexo::test
