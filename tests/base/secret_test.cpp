// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/secret.h"

#include <algorithm>

#include "tests/support/test.h"

namespace parlexo::test {
namespace {

// Empty strings keep their memory, so it can be read.
template <class Text>
void expectWiped(Text text) {
  const auto* memory = text.data();
  const auto size = text.size();
  ASSERT_GT(size, 0);
  wipe(text);
  EXPECT_EQ(text.size(), 0);
  ASSERT_EQ(std::as_const(text).data(), memory);
  EXPECT_TRUE(std::all_of(memory, memory + size, [](auto each) { return each == decltype(each){}; }));
}

TEST(Secret, wipeClearsTheMemory) {
  expectWiped(std::string("short"));
  expectWiped(std::string("a password that is too long for the string itself"));
  expectWiped(QByteArray("bytes"));
  expectWiped(QString::fromLatin1("demo1234"));
}

TEST(Secret, wipeDoesNotChangeSharedTexts) {
  QString text = QString::fromLatin1("demo1234");
  const QString other = text;
  wipe(text);
  EXPECT_EQ(text, QString());
  EXPECT_EQ(other, u"demo1234"_s);
}

TEST(Secret, isEncodedInTheCodePage) {
  EXPECT_EQ(static_cast<const std::string&>(Secret(u"p\u00E4ss\u20AC"_s)), "p\xE4ss\x80");
  EXPECT_EQ(static_cast<const std::string&>(Secret({})), "");
}

}  // namespace
}  // namespace parlexo::test
