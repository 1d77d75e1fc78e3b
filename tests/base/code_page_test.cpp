#include "base/code_page.h"

#include <ostream>

#include <gtest/gtest.h>

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

TEST(CodePage, everyByteSurvivesTheTripToTextAndBack) {
  QByteArray all;
  for (int byte = 0; byte < 256; ++byte) all.append(static_cast<char>(byte));
  const QString text = fromCodePage(all);
  EXPECT_EQ(text.size(), 256);
  EXPECT_EQ(toCodePage(text), all);
  EXPECT_TRUE(fitsCodePage(text));
}

struct Mapping {
  const char* what;
  QString text;
  QByteArray bytes;
  bool fits;
};

void PrintTo(const Mapping& mapping, std::ostream* out) {
  *out << mapping.what;
}

class CodePageMapping : public testing::TestWithParam<Mapping> {};

TEST_P(CodePageMapping, writesTheBytesOfTheTable) {
  EXPECT_EQ(toCodePage(GetParam().text), GetParam().bytes);
  EXPECT_EQ(fitsCodePage(GetParam().text), GetParam().fits);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CodePageMapping,
    testing::Values(Mapping{"nothing", u""_qs, "", true},
                    Mapping{"Latin letters", u"Zoë é"_qs, "Zo\xEB \xE9", true},
                    Mapping{"euro sign and low quotes", u"€‚ƒ„…"_qs, "\x80\x82\x83\x84\x85", true},
                    Mapping{"quotes and dashes", u"‘’“”•–—™"_qs, "\x91\x92\x93\x94\x95\x96\x97\x99", true},
                    Mapping{"letters among the controls", u"Œ\u0178"_qs, "\x8C\x9F", true},
                    Mapping{"undefined byte", u"\u0081"_qs, "\x81", true},
                    Mapping{"Cyrillic letters", u"Жук"_qs, "???", false},
                    Mapping{"surrogate pair", u"a😀b"_qs, "a?b", false},
                    Mapping{"half a pair at the end", QString(QChar(0xD83D)), "?", false},
                    Mapping{"half a pair", QString(QChar(0xD83D)) + u"x"_qs, "?x", false}));

TEST(CodePage, textThroughTheCodePageShowsWhatWillBeStored) {
  EXPECT_EQ(throughCodePage(u"5 € für Łukasz"), u"5 € für ?ukasz"_qs);
}

}  // namespace
}  // namespace parlexo
