// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/template.h"

#include "tests/support/file_bytes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

TEST(TemplateParsing, requiresOneSeparator) {
  const std::pair<QByteArray, std::optional<Template>> files[] = {
      {"Ann [+1]{|/SEP/|}Hi", Template{"Ann [+1]", "Hi"}},
      {"{|/SEP/|}Hi", Template{"", "Hi"}},
      {"{|/SEP/|}", Template{"", ""}},
      {"\r\n Ann [+1]\t{|/SEP/|} a  b \n", Template{"Ann [+1]", "a  b"}},
      {"", std::nullopt},
      {"Hi", std::nullopt},
      {"Ann{|/SEP/|", std::nullopt},
      {"{|/SEP/|}a{|/SEP/|}b", std::nullopt},
  };
  for (const auto& [bytes, content] : files) EXPECT_EQ(parseTemplate(bytes), content) << bytes.constData();
}

struct TemplateStore : testing::Test {
  QTemporaryDir directory;
  TemplateFolder folder{directory.path()};
};

TEST_F(TemplateStore, savesPlainBytesAndReplaces) {
  EXPECT_TRUE(folder.save("Lunch", {"", "a much longer text than the next"}));
  EXPECT_TRUE(
      folder.save("Lunch", {QString::fromUtf8("Zo\u00EB [+44]"), QString::fromUtf8("5 \u20AC\n\u4F60")}));
  EXPECT_EQ(readBytes(directory.filePath("Lunch.tpl")).toHex(),
            QByteArray("Zo\xEB [+44]{|/SEP/|}5 \x80\n?").toHex());
  EXPECT_EQ(folder.load("Lunch"),
            (Template{QString::fromUtf8("Zo\u00EB [+44]"), QString::fromUtf8("5 \u20AC\n?")}));
}

TEST_F(TemplateStore, listsTemplateFilesAndRemovesThem) {
  ASSERT_TRUE(folder.save("b.tpl", {}) && folder.save("Ask - 10%", {}) && folder.save("c", {}));
  ASSERT_TRUE(QDir(directory.path()).mkdir("folder.tpl"));
  writeBytes(directory.filePath("notes.txt"), "Ann{|/SEP/|}Hi");
  EXPECT_THAT(folder.names(), ElementsAre("Ask - 10%", "b.tpl", "c"));
  EXPECT_TRUE(folder.remove("c"));
  EXPECT_TRUE(folder.remove("c")) << "gone is gone, whoever removed it";
  EXPECT_FALSE(folder.remove("folder"));
  EXPECT_THAT(folder.names(), ElementsAre("Ask - 10%", "b.tpl"));
}

TEST_F(TemplateStore, rejectsInvalidFileNames) {
  for (const QString& name : {QString(), u"../out"_s, u"a\\b"_s, u"a"_s + QChar(u'\0'), QString(300, u'x')})
    EXPECT_FALSE(folder.save(name, {"", "Hi"})) << name.toStdString();
  EXPECT_THAT(folder.names(), IsEmpty());
  const TemplateFolder missing(directory.filePath("missing"));
  EXPECT_FALSE(missing.save("a", {}));
  EXPECT_EQ(missing.load("a"), std::nullopt);
  EXPECT_THAT(missing.names(), IsEmpty());
}

}  // namespace
}  // namespace parlexo::test
