// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/command_line.h"

#include "tests/support/test.h"

namespace parlexo::test {
namespace {

auto parse(const QStringList& arguments) {
  return parseCommandLine(QStringList("parlexo-client") + arguments);
}

TEST(CommandLine, setsTheOptions) {
  const Cases<QStringList, bool, QString, QString> cases = {
      {{"--site=http://[::1]:8081/", "--data-dir=/tmp/a=b"}, false, "http://[::1]:8081", "/tmp/a=b"},
      {{"--data-dir", "x"}, false, {}, QDir::currentPath() + "/x"},
      {{"-platform", "offscreen", "-style=fusion", "-reverse", "--demo"}, true, {}, {}},
  };
  for (const auto& [arguments, demo, site, dataDir] : cases) {
    SCOPED_TRACE(arguments.join(u' ').toStdString());
    const auto parsed = parse(arguments);
    const auto* options = std::get_if<ProgramOptions>(&parsed);
    ASSERT_TRUE(options);
    EXPECT_EQ(options->demo, demo);
    EXPECT_EQ(options->site, site);
    EXPECT_EQ(options->dataDir, dataDir);
  }
}

TEST(CommandLine, exitsEarlyWithACodeAndAText) {
  const Cases<QStringList, int, QString> cases = {
      {{"--help"}, 0, "--data-dir <DIR>"},
      {{"-h"}, 0, "--site <http://HOST:PORT>"},
      {{"--version"}, 0, "Parlexo Client 2.24\n"},
      {{"--demos"}, 2, "Unknown option 'demos'"},
      {{"demo"}, 2, "unexpected argument \"demo\""},
      {{"--data-dir"}, 2, "Missing value"},
      {{"--site", "--demo"}, 2, "option \"--site\" needs a value"},
      {{"--data-dir="}, 2, "option \"--data-dir\" needs a value"},
      {{"--site=https://a.example"}, 2, "is not a site"},
      {{"--site=http://a.example/x"}, 2, "is not a site"},
  };
  for (const auto& [arguments, exitCode, mentions] : cases) {
    SCOPED_TRACE(arguments.join(u' ').toStdString());
    const auto parsed = parse(arguments);
    const auto* exit = std::get_if<EarlyExit>(&parsed);
    ASSERT_TRUE(exit);
    EXPECT_EQ(exit->exitCode, exitCode);
    EXPECT_TRUE(exit->output.contains(mentions)) << exit->output.toStdString();
  }
}

}  // namespace
}  // namespace parlexo::test
