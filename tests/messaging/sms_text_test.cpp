// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/sms_text.h"

#include "tests/support/test.h"

namespace parlexo::test {
namespace {

QString repeated(int count, char32_t character = U'x') {
  return QString::fromUcs4(&character, 1).repeated(count);
}

constexpr auto standard = SmsCharset::Standard;
constexpr auto unicode = SmsCharset::Unicode;

TEST(SmsText, totalAndRemainingFollowTheCharacterSet) {
  const Cases<const char*, SmsCharset, QString, int, int> cases = {
      {"empty standard", standard, {}, 1, 760},
      {"empty unicode", unicode, {}, 1, 335},
      {"full single message", standard, repeated(160), 1, 600},
      {"first text of two parts", standard, repeated(161), 2, 599},
      {"first text of three parts", standard, repeated(305), 3, 455},
      {"81 tildes", standard, repeated(81, U'~'), 2, 598},
      {"each escaped byte counts two", standard, QString::fromUtf8("\x0C[\\]^{|}~\u00A4"), 1, 740},
      {"euro, accents and line breaks", standard, QString::fromUtf8("\u20AC\u00E4\u00D1\n\r@"), 1, 754},
      {"an emoji is one question mark", standard, repeated(10, U'\U0001F600'), 1, 750},
      {"full single unicode message", unicode, repeated(70), 1, 265},
      {"first unicode text of two parts", unicode, repeated(71), 2, 264},
      {"first unicode text of three parts", unicode, repeated(135), 3, 200},
      {"an emoji is two unicode characters", unicode, repeated(35, U'\U0001F600'), 1, 265},
  };
  for (const auto& [what, charset, text, total, remaining] : cases) {
    const SmsComposition composition = composeSms(text, charset);
    EXPECT_EQ(composition.totalSms, total) << what;
    EXPECT_EQ(composition.remaining, remaining) << what;
    EXPECT_EQ(composition.editorText, text) << what;
    EXPECT_FALSE(composition.tooLong) << what;
  }
}

TEST(SmsText, overlongStandardTextLosesItsEnd) {
  const Cases<const char*, QString, QString> samples = {
      {"plain", repeated(800), repeated(760)},
      {"escaped characters among the first", repeated(20, U'~') + repeated(800),
       repeated(20, U'~') + repeated(720)},
      {"an escaped character that only half fits", repeated(759) + u'~', repeated(759)},
      {"pairs stay whole", repeated(759) + repeated(3, U'\U0001F600'),
       repeated(759) + repeated(1, U'\U0001F600')},
      {"a huge paste", repeated(1'000'000, U'~'), repeated(380, U'~')},
  };
  for (const auto& [what, text, kept] : samples) {
    const SmsComposition composition = composeSms(text, standard);
    EXPECT_EQ(composition.editorText, kept) << what;
    EXPECT_EQ(composition.transmitText, kept) << what;
    EXPECT_EQ(composition.totalSms, 5) << what;
    EXPECT_GE(composition.remaining, 0) << what;
  }
}

TEST(SmsParts, cursorIsInThePartOfThePreviousCharacter) {
  const Cases<QString, SmsCharset, qsizetype, SmsPart> samples = {{{}, standard, 0, {1, 1}},
                                                                  {repeated(160), standard, 160, {1, 1}},
                                                                  {repeated(161), standard, 0, {1, 2}},
                                                                  {repeated(161), standard, 152, {1, 2}},
                                                                  {repeated(161), standard, 153, {2, 2}},
                                                                  {repeated(304), standard, 304, {2, 2}},
                                                                  {repeated(100, U'~'), standard, 76, {1, 2}},
                                                                  {repeated(100, U'~'), standard, 77, {2, 2}},
                                                                  {repeated(335), unicode, 335, {5, 5}},
                                                                  {repeated(71), unicode, 68, {2, 2}}};
  for (const auto& [text, charset, cursor, part] : samples)
    EXPECT_EQ(partAt(text, charset, cursor), part) << text.size() << " at " << cursor;
}

TEST(UnicodeForm, isDecodedOnlyIfComplete) {
  const QString text = QString::fromUtf8("A\u4F60\U0001F600");
  EXPECT_EQ(decodeUnicodeSms(composeSms(text, unicode).transmitText), text);
  EXPECT_EQ(decodeUnicodeSms("%%UNICODE%%4f60"), QString::fromUtf8("\u4F60")) << "one character";
  for (const char* other : {"", "0048", "%%UNICODE%%", "%%UNICODE%%004", "%%UNICODE%%00480",
                            "%%UNICODE%%00G8", "%%UNICODE%%0048 0049", "x%%UNICODE%%0048", "%%unicode%%0048"})
    EXPECT_EQ(decodeUnicodeSms(other), std::nullopt) << other;
}

}  // namespace
}  // namespace parlexo::test
