#include "base/code_page.h"

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
  QString text;
  QByteArray bytes;
  bool fits;
};

class CodePageMapping : public testing::TestWithParam<Mapping> {};

TEST_P(CodePageMapping, writesTheBytesOfTheTable) {
  EXPECT_EQ(toCodePage(GetParam().text), GetParam().bytes);
  EXPECT_EQ(fitsCodePage(GetParam().text), GetParam().fits);
}

INSTANTIATE_TEST_SUITE_P(Texts, CodePageMapping,
                         testing::Values(Mapping{u""_qs, "", true}, Mapping{u"Zoë é"_qs, "Zo\xEB \xE9", true},
                                         Mapping{u"€‚ƒ„…"_qs, "\x80\x82\x83\x84\x85", true},
                                         Mapping{u"‘’“”•–—™"_qs, "\x91\x92\x93\x94\x95\x96\x97\x99", true},
                                         Mapping{u"Œ\u0178"_qs, "\x8C\x9F", true},
                                         Mapping{u"\u0081"_qs, "\x81", true},
                                         Mapping{u"Жук"_qs, "???", false}, Mapping{u"a😀b"_qs, "a?b", false},
                                         Mapping{QString(QChar(0xD83D)), "?", false},
                                         Mapping{QString(QChar(0xD83D)) + u"x"_qs, "?x", false}));

TEST(CodePage, textThroughTheCodePageShowsWhatWillBeStored) {
  EXPECT_EQ(throughCodePage(u"5 € für Łukasz"), u"5 € für ?ukasz"_qs);
}

}  // namespace
}  // namespace parlexo
