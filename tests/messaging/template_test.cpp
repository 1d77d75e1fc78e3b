#include "messaging/core/template.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace parlexo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct TemplateFile {
  const char* what;
  QByteArray bytes;
  std::optional<Template> content;
};

void PrintTo(const TemplateFile& sample, std::ostream* out) {
  *out << sample.what;
}

class TemplateParsing : public testing::TestWithParam<TemplateFile> {};

TEST_P(TemplateParsing, wantsTheSeparatorOnce) {
  EXPECT_EQ(parseTemplate(GetParam().bytes), GetParam().content);
}

INSTANTIATE_TEST_SUITE_P(
    Files, TemplateParsing,
    testing::Values(TemplateFile{"both parts", "Ann [+1]{|/SEP/|}Hi", Template{"Ann [+1]", "Hi"}},
                    TemplateFile{"no recipients", "{|/SEP/|}Hi", Template{"", "Hi"}},
                    TemplateFile{"nothing but the separator", "{|/SEP/|}", Template{"", ""}},
                    TemplateFile{"white space around the parts", "\r\n Ann [+1]\t{|/SEP/|} a  b \n",
                                 Template{"Ann [+1]", "a  b"}},
                    TemplateFile{"empty file", "", std::nullopt},
                    TemplateFile{"no separator", "Hi", std::nullopt},
                    TemplateFile{"cut separator", "Ann{|/SEP/|", std::nullopt},
                    TemplateFile{"two separators", "{|/SEP/|}a{|/SEP/|}b", std::nullopt},
                    TemplateFile{"two separators in a row", "{|/SEP/|}{|/SEP/|}", std::nullopt}));

class TemplateStore : public testing::Test {
 protected:
  QTemporaryDir directory;
  TemplateFolder folder{directory.path()};

  QByteArray bytesOf(const char* file) {
    QFile opened(directory.filePath(QString::fromLatin1(file)));
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("(no file)");
  }
};

TEST_F(TemplateStore, savesExactlyThesePlainBytesAndReplacesSilently) {
  EXPECT_TRUE(folder.save("Lunch", {"", "a much longer text than the next"}));
  EXPECT_TRUE(
      folder.save("Lunch", {QString::fromUtf8("Zo\u00EB [+44]"), QString::fromUtf8("5 \u20AC\n\u4F60")}));
  EXPECT_EQ(bytesOf("Lunch.tpl").toHex(), QByteArray("Zo\xEB [+44]{|/SEP/|}5 \x80\n?").toHex());
  EXPECT_EQ(folder.load("Lunch"),
            (Template{QString::fromUtf8("Zo\u00EB [+44]"), QString::fromUtf8("5 \u20AC\n?")}));
}

TEST_F(TemplateStore, listsTemplateFilesAndRemovesThem) {
  ASSERT_TRUE(folder.save("b.tpl", {}) && folder.save("Ask - 10%", {}) && folder.save("c", {}));
  ASSERT_TRUE(QDir(directory.path()).mkdir("folder.tpl"));
  ASSERT_TRUE(QFile(directory.filePath("notes.txt")).open(QIODevice::WriteOnly));
  EXPECT_THAT(folder.names(), ElementsAre("Ask - 10%", "b.tpl", "c"));
  EXPECT_TRUE(folder.remove("c"));
  EXPECT_TRUE(folder.remove("c")) << "gone is gone, whoever removed it";
  EXPECT_FALSE(folder.remove("folder"));
  EXPECT_THAT(folder.names(), ElementsAre("Ask - 10%", "b.tpl"));
}

TEST_F(TemplateStore, refusesNamesThatNoFileCanHave) {
  for (const QString& name : {QString(), QStringLiteral("../out"), QStringLiteral("a\\b"),
                              QStringLiteral("a") + QChar(u'\0'), QString(300, u'x')})
    EXPECT_FALSE(folder.save(name, {"", "Hi"})) << name.toStdString();
  EXPECT_THAT(folder.names(), IsEmpty());
  const TemplateFolder missing(directory.filePath("missing"));
  EXPECT_FALSE(missing.save("a", {}));
  EXPECT_EQ(missing.load("a"), std::nullopt);
  EXPECT_THAT(missing.names(), IsEmpty());
}

}  // namespace
}  // namespace parlexo
