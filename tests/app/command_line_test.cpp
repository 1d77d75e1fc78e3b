#include "app/core/command_line.h"

#include <QDir>
#include <gtest/gtest.h>

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

TEST(CommandLine, setsTheOptions) {
  const struct {
    QStringList arguments;
    bool demo;
    QString site;
    QString dataDir;
    QString journeyDir;
  } cases[] = {
      {{}, false, {}, {}, {}},
      {{u"--demo"_qs}, true, {}, {}, {}},
      {{u"--journey"_qs, u"/tmp/pictures"_qs}, true, {}, {}, u"/tmp/pictures"_qs},
      {{u"--site"_qs, u"http://127.0.0.1:8081"_qs}, false, u"http://127.0.0.1:8081"_qs, {}, {}},
      {{u"--site=http://[::1]:8081/"_qs, u"--data-dir=/tmp/a=b"_qs},
       false,
       u"http://[::1]:8081"_qs,
       u"/tmp/a=b"_qs,
       {}},
      {{u"--data-dir"_qs, u"x"_qs}, false, {}, QDir::currentPath() + u"/x"_qs, {}},
      {{u"-platform"_qs, u"offscreen"_qs, u"-style=fusion"_qs, u"--demo"_qs}, true, {}, {}, {}},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.arguments.join(u' ').toStdString());
    const auto parsed = parseCommandLine(each.arguments);
    const auto* options = std::get_if<ProgramOptions>(&parsed);
    ASSERT_TRUE(options);
    EXPECT_EQ(options->demo, each.demo);
    EXPECT_EQ(options->site, each.site);
    EXPECT_EQ(options->dataDir, each.dataDir);
    EXPECT_EQ(options->journeyDir, each.journeyDir);
  }
}

TEST(CommandLine, endsWithACodeAndAText) {
  const struct {
    QStringList arguments;
    int exitCode;
    QString mentions;
  } cases[] = {
      {{u"--help"_qs}, 0, u"--data-dir DIR"_qs},
      {{u"-h"_qs}, 0, u"--data-dir DIR"_qs},
      {{u"--version"_qs}, 0, u"Parlexo Client 2.24\n"_qs},
      {{u"--demos"_qs}, 2, u"unknown option \"--demos\""_qs},
      {{u"-demo"_qs}, 2, u"unknown option \"-demo\""_qs},
      {{u"demo"_qs}, 2, u"unknown option \"demo\""_qs},
      {{QString()}, 2, u"unknown"_qs},
      {{u"--site"_qs}, 2, u"option \"--site\" needs a value"_qs},
      {{u"--site"_qs, u"--demo"_qs}, 2, u"option \"--site\" needs a value"_qs},
      {{u"--data-dir="_qs}, 2, u"option \"--data-dir\" needs a value"_qs},
      {{u"--site"_qs, u"127.0.0.1:80"_qs}, 2, u"is not a site"_qs},
      {{u"--site=https://a.example"_qs}, 2, u"is not a site"_qs},
      {{u"--site=http://a.example/x"_qs}, 2, u"is not a site"_qs},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.arguments.join(u' ').toStdString());
    const auto parsed = parseCommandLine(each.arguments);
    const auto* end = std::get_if<ImmediateEnd>(&parsed);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->exitCode, each.exitCode);
    EXPECT_TRUE(end->output.contains(each.mentions)) << end->output.toStdString();
  }
}

}  // namespace
}  // namespace parlexo
