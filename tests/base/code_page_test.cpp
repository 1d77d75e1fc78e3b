// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/code_page.h"

#include "base/unsendable_characters.h"
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

TEST(UnsendableCharacters, areListedOnceInReadableForm) {
  const QString family = QString::fromUtf8("\U0001F468\u200D\U0001F469");
  EXPECT_EQ(unsendableCharacters(QString::fromUtf8("\u4F60a\u20AC\u00E9\u4F60\u200B\u0161 ") + family),
            QStringList({QString::fromUtf8("\u4F60"), "U+200B", family}));
  EXPECT_EQ(unsendableCharacters(QString::fromUtf8("e\u0301")), QStringList(QString::fromUtf8("e\u0301")));
  EXPECT_TRUE(unsendableCharacters(QString::fromUtf8("tab\tline\r\n[\u0081\x7F]")).isEmpty());
  EXPECT_EQ(unsendableCharacters(QChar(0) + QString::fromUtf8("\x07\x0B\x1B\x1B\x1F\u0085")),
            QStringList({"NUL (null)", "BEL (bell)", "VT (vertical tab)", "ESC (escape)",
                         "US (unit separator)", "NEL (next line)"}));
}

}  // namespace
}  // namespace parlexo::test
